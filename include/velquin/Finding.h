#pragma once

#include <exception>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include <velquin/Export.h>
#include <velquin/Logger.h>

namespace Velquin {

/// A piece of one line of a file. All count from 1; 0 is unknown.
struct SourceSpan {
    unsigned long long ullLine = 0;
    unsigned long long ullColumn = 0;    ///< of the first character; counts characters, not bytes
    unsigned long long ullEndColumn = 0; ///< behind the last character, on the same line
};

/// A fault that an operation found in its input, as a record. The log line is one way to show it.
struct Finding {
    /// What the finding is about. The kind decides which of the fields below are filled.
    enum class Kind {
        OTHER,             ///< only the text says what is wrong
        MISSING_ATTRIBUTE, ///< strAttribute is required and absent; "a, b and c" in a survey where several are
        MISSING_ELEMENT,   ///< the same for a required child element; "a or b" where one of two is
        INVALID_VALUE,     ///< strAttribute has the wrong value strValue
        UNREADABLE_FILE,   ///< strFile can't be read at all
        UNKNOWN_ATTRIBUTE, ///< the element has no attribute of the name strAttribute
        UNKNOWN_ELEMENT,   ///< the element, whose name is strAttribute, doesn't belong where it stands
    };

    /// Another place that belongs to the finding, for instance the first of two equal identifiers.
    struct Related {
        std::string strLabel; ///< what is there: "first here"
        std::string strFile;
        unsigned long long ullLine = 0; ///< line in the file, as Finding::ullLine
        unsigned long long ullElement = 0;
        std::string strAttribute; ///< often empty
        SourceSpan span{};
    };

    Kind eKind = Kind::OTHER;
    std::string strRule; ///< stable name of what is wrong: "missing-attribute"; empty when it only follows from another
    int nLevel = Logger::ERROR_LEVEL;  ///< ERROR_LEVEL, WARNING_LEVEL or, for a note, INFO_LEVEL of Logger
    std::string strLogger;             ///< name of the logger that has the line
    std::string strFile;               ///< the file as the program named it; empty when no file is concerned
    unsigned long long ullLine = 0;    ///< line in the file, from 1; 0 when unknown
    std::string strElementPath;        ///< XPath of the element; empty when no element is concerned
    std::string strAttribute;          ///< attribute or child element concerned; see Kind
    std::string strValue;              ///< its value as written
    std::string strHint;               ///< what would be right; often empty
    std::string strMessage;            ///< what is wrong, without file and line; empty where the text has neither
    std::string strText;               ///< the whole log line
    unsigned long long ullElement = 0; ///< number of the element in its file, in the order of start tags, from 1
    SourceSpan span{};      ///< of the attribute or of the element's name; all 0 unless a survey looked for it
    SourceSpan valueSpan{}; ///< of the attribute's value without its quotes; all 0 for an element
    bool bEcho = false;     ///< whether it only follows from another finding; a survey tells
    std::vector<Related> vecRelated;
};

/// The finding in the words of people, on one line, without its place: `framing="crc4": valid values are ESF and CRC4`.
VELQUIN_CORE_EXPORT std::string describeFinding( const Finding& in_finding );

/// The place in the input where an operation is. It serves the findings of operations that are called meanwhile and
/// know no input. Places stand on the stack of one thread; the innermost one fills the findings. A place counts as soon
/// as its base object exists: the initialisers of a derived class must not report findings.
class VELQUIN_CORE_EXPORT FindingPlace {
public:
    FindingPlace() noexcept;
    FindingPlace( const FindingPlace& ) = delete;
    FindingPlace& operator=( const FindingPlace& ) = delete;

    /// Fills file, line and element path if they are still empty.
    virtual void locate( Finding& inout_finding ) const = 0;

    /// The innermost place of this thread, null when there is none.
    static const FindingPlace* getCurrent() noexcept;

protected:
    ~FindingPlace();

private:
    const FindingPlace* m_pOuter;
};

/// Hands the findings of this thread to a program while the watch lives. The log is written, too. Watches nest; the
/// innermost one gets the findings. An exception of the callback is dropped. A finding that the callback itself reports
/// goes to the next outer watch.
class VELQUIN_CORE_EXPORT FindingWatch {
public:
    using Callback = std::function<void( const Finding& )>;

    explicit FindingWatch( Callback in_callback );
    FindingWatch( const FindingWatch& ) = delete;
    FindingWatch& operator=( const FindingWatch& ) = delete;
    ~FindingWatch();

private:
    friend VELQUIN_CORE_EXPORT void reportFinding( const Logger&, Finding, const char*, int ) noexcept;

    Callback m_callback;
    FindingWatch* m_pOuter;
};

/// Logs the finding's text, made printable, at its level, and hands the finding to the watch of this thread. Fills in
/// the logger's name; the innermost place fills in file, line and element if they are unknown.
VELQUIN_CORE_EXPORT void reportFinding( const Logger& in_logger, Finding in_finding, const char* in_szFile,
                                        int in_nLine ) noexcept;

/// The same for a finding that has only a text.
VELQUIN_CORE_EXPORT void reportFinding( const Logger& in_logger, int in_nLevel, std::string in_strText,
                                        const char* in_szFile, int in_nLine ) noexcept;

/// What an operation of a model knows of a fault: its rule and the attribute with the wrong value.
struct Fault {
    const char* szRule;
    const char* szAttribute = "";
    std::string strValue{};
    std::string strHint{};
    Finding::Kind eKind = Finding::Kind::INVALID_VALUE; ///< counts only with an attribute
};

/// The same for a fault at ERROR. Without an attribute, the finding is of the kind OTHER.
VELQUIN_CORE_EXPORT void reportFinding( const Logger& in_logger, Fault in_fault, std::string in_strText,
                                        const char* in_szFile, int in_nLine ) noexcept;

/// Call it in a catch block. Reports a finding at ERROR: the operation failed, and why ("out of memory in load").
VELQUIN_CORE_EXPORT void reportCurrentException( const Logger& in_logger, const char* in_szOperation,
                                                 const char* in_szFile, int in_nLine ) noexcept;

} // namespace Velquin

/// Reports the streamed text as a finding.
/// @param how a level, or a Fault (in parentheses: it has commas)
#define VELQUIN_REPORT( logger, how, streamed )                                                                        \
    do {                                                                                                               \
        std::ostringstream reportText_;                                                                                \
        reportText_ << streamed; /* NOLINT(bugprone-macro-parentheses): a chain of << */                               \
        ::Velquin::reportFinding( ( logger ), ( how ), reportText_.str(), __FILE__, __LINE__ );                        \
    } while ( false )
#define VELQUIN_REPORT_ERROR( logger, streamed ) VELQUIN_REPORT( logger, ::Velquin::Logger::ERROR_LEVEL, streamed )
#define VELQUIN_REPORT_WARNING( logger, streamed ) VELQUIN_REPORT( logger, ::Velquin::Logger::WARNING_LEVEL, streamed )

/// Ends the function-try-block of an exported operation, which must not throw. The exception becomes an ERROR line, and
/// the operation yields `result`.
#define VELQUIN_CATCH_AND_RETURN( logger, result )                                                                     \
    catch ( ... ) {                                                                                                    \
        ::Velquin::reportCurrentException( ( logger ), __func__, __FILE__, __LINE__ );                                 \
        return result;                                                                                                 \
    }
