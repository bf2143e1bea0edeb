#pragma once

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include <velquin/Finding.h>

#include "document/Element.h"
#include "reading/KeywordTable.h"
#include "reading/Number.h"

namespace Velquin::Pstn {

/// The words of a reader's messages that differ from reader to reader. A message about an attribute reads
///
///     lead + path + "/" + attribute + noun + element + " declared in file " + file + " at line " + line + tail
///
/// and, for an invalid value, has "=" + value before the noun and a hint after the tail.
struct ReaderWording {
    std::string_view strMissingNoun; ///< with its bracket and blanks, for instance "] for board  "
    std::string_view strInvalidNoun;
    std::string_view strMissingLead = "Missing attribute ";
    std::string_view strMissingTail = ". ";
    std::string_view strInvalidLead = "Invalid attribute  [";
};

/// How a reader takes a number and what it says of a text that is none.
struct NumberRule {
    NumberPolicy ePolicy;
    std::string_view strHint;
};

inline constexpr std::string_view DECIMAL_HINT = "The value must be a decimal number.";
/// The rules of most readers: the leading number, or nothing but the number.
inline constexpr NumberRule LEADING_DECIMAL{ NumberPolicy::LEADING, DECIMAL_HINT };
inline constexpr NumberRule WHOLE_DECIMAL{ NumberPolicy::WHOLE, DECIMAL_HINT };

/// What became of an optional attribute.
enum class ReadResult {
    READ,
    ABSENT,
    WRONG, ///< and reported
};

/// Source file and line of a caller, when it stands as a default argument.
struct SourcePlace {
    const char* szFile;
    int nLine;

    static constexpr SourcePlace current( const char* in_szFile = __builtin_FILE(), int in_nLine = __builtin_LINE() ) {
        return { in_szFile, in_nLine };
    }
};

/// Reads the attributes and children of one element. Every `require...` operation reports what is absent or wrong, in
/// the reader's wording, and then yields false (or null): the caller only returns. Every `find...` operation says which
/// of the three it was.
class AttributeReader {
public:
    AttributeReader( xmlNode* in_pElement, const Logger& in_logger, const ReaderWording& in_wording ) noexcept
        : m_pElement( in_pElement ), m_pLogger( &in_logger ), m_pWording( &in_wording ) {}

    /// The same element with other words.
    AttributeReader as( const ReaderWording& in_wording ) const noexcept {
        return { m_pElement, *m_pLogger, in_wording };
    }

    xmlNode* getElement() const noexcept { return m_pElement; }
    const char* getName() const noexcept { return getElementName( m_pElement ); }

    ReadResult findText( const char* in_szAttribute, AttributeText& out_text ) const;
    bool requireText( const char* in_szAttribute, AttributeText& out_text ) const;

    template <class T>
    ReadResult findNumber( const char* in_szAttribute, const NumberRule& in_rule, T& out_number ) const {
        AttributeText text;
        if ( findText( in_szAttribute, text ) == ReadResult::ABSENT )
            return ReadResult::ABSENT;
        return takeNumber( in_szAttribute, text, in_rule, out_number ) ? ReadResult::READ : ReadResult::WRONG;
    }

    template <class T>
    bool requireNumber( const char* in_szAttribute, const NumberRule& in_rule, T& out_number ) const {
        AttributeText text;
        return requireText( in_szAttribute, text ) && takeNumber( in_szAttribute, text, in_rule, out_number );
    }

    /// The number that a text holds which was read before; otherwise it is reported as invalid.
    template <class T>
    bool takeNumber( const char* in_szAttribute, const AttributeText& in_text, const NumberRule& in_rule,
                     T& out_number ) const {
        const std::optional<T> number = parseNumber<T>( in_text.view(), in_rule.ePolicy );
        if ( !number ) {
            reportInvalid( in_szAttribute, in_text.view(), in_rule.strHint );
            return false;
        }
        out_number = *number;
        return true;
    }

    /// A keyword of the table; any other value is reported as invalid, with the hint.
    template <class E, std::size_t N>
    ReadResult findKeyword( const char* in_szAttribute, const KeywordTable<E, N>& in_table, E& out_value,
                            std::string_view in_strHint = {} ) const {
        AttributeText text;
        if ( findText( in_szAttribute, text ) == ReadResult::ABSENT )
            return ReadResult::ABSENT;
        return takeKeyword( in_szAttribute, text, in_table, out_value, in_strHint ) ? ReadResult::READ
                                                                                    : ReadResult::WRONG;
    }

    template <class E, std::size_t N>
    bool requireKeyword( const char* in_szAttribute, const KeywordTable<E, N>& in_table, E& out_value,
                         std::string_view in_strHint = {} ) const {
        AttributeText text;
        return requireText( in_szAttribute, text ) &&
               takeKeyword( in_szAttribute, text, in_table, out_value, in_strHint );
    }

    /// A keyword of the table where the schema lets nothing else through: any other value is an assertion, whose text
    /// compares the attribute with the keywords.
    template <class E, std::size_t N>
    ReadResult findSchemaKeyword( const char* in_szAttribute, const KeywordTable<E, N>& in_table, E& out_value,
                                  SourcePlace in_where = SourcePlace::current() ) const {
        AttributeText text;
        if ( findText( in_szAttribute, text ) == ReadResult::ABSENT )
            return ReadResult::ABSENT;
        return takeSchemaKeyword( in_szAttribute, text, in_table, out_value, in_where ) ? ReadResult::READ
                                                                                        : ReadResult::WRONG;
    }

    template <class E, std::size_t N>
    bool requireSchemaKeyword( const char* in_szAttribute, const KeywordTable<E, N>& in_table, E& out_value,
                               SourcePlace in_where = SourcePlace::current() ) const {
        AttributeText text;
        return requireText( in_szAttribute, text ) &&
               takeSchemaKeyword( in_szAttribute, text, in_table, out_value, in_where );
    }

    /// The first child element of that name; null, after a report, when there is none.
    xmlNode* requireChild( const char* in_szName ) const;

    /// Reports that the attribute is missing.
    void reportMissing( const char* in_szAttribute ) const;
    /// Reports that a required child element is missing; `in_strName` may name alternatives.
    void reportMissingChild( std::string_view in_strName ) const;
    /// Reports that the value is refused.
    void reportInvalid( const char* in_szAttribute, std::string_view in_strValue,
                        std::string_view in_strHint = {} ) const;
    /// Reports subject + " declared in file " + file + " at line " + line + tail.
    void reportDeclared( std::string_view in_strSubject, std::string_view in_strTail,
                         int in_nLevel = Logger::ERROR_LEVEL ) const;

private:
    void reportDeclared( Finding in_finding, std::string_view in_strTail ) const;
    void report( Finding in_finding, std::string_view in_strLead, std::string_view in_strMiddle,
                 std::string_view in_strTail ) const;
    void assertKeyword( const char* in_szAttribute, std::string_view in_strValue,
                        std::span<const std::string_view> in_aKeywords, SourcePlace in_where ) const;

    template <class E, std::size_t N>
    bool takeKeyword( const char* in_szAttribute, const AttributeText& in_text, const KeywordTable<E, N>& in_table,
                      E& out_value, std::string_view in_strHint ) const {
        const E* const pValue = in_table.find( in_text.view() );
        if ( !pValue ) {
            reportInvalid( in_szAttribute, in_text.view(), in_strHint );
            return false;
        }
        out_value = *pValue;
        return true;
    }

    template <class E, std::size_t N>
    bool takeSchemaKeyword( const char* in_szAttribute, const AttributeText& in_text,
                            const KeywordTable<E, N>& in_table, E& out_value, SourcePlace in_where ) const {
        const E* const pValue = in_table.find( in_text.view() );
        if ( !pValue ) {
            assertKeyword( in_szAttribute, in_text.view(), in_table.getKeywords(), in_where );
            return false;
        }
        out_value = *pValue;
        return true;
    }

    xmlNode* m_pElement;
    const Logger* m_pLogger;
    const ReaderWording* m_pWording;
};

/// The element whose reading the model's operations take part in: the place of what they refuse.
class ElementPlace : private FindingPlace {
public:
    /// @param in_strPath the element's path where it is known; a text that outlives the object
    explicit ElementPlace( const xmlNode* in_pElement, std::string_view in_strPath = {} ) noexcept
        : m_pElement( in_pElement ), m_strPath( in_strPath ) {}

private:
    void locate( Finding& inout_finding ) const override;

    const xmlNode* m_pElement;
    std::string_view m_strPath;
};

/// Stands between libxml2 and a reader for as long as the reader works on its element: reads attributes and children,
/// and is the place of whatever the model refuses meanwhile.
class ElementReader : public AttributeReader {
public:
    ElementReader( xmlNode* in_pElement, const Logger& in_logger, const ReaderWording& in_wording ) noexcept
        : AttributeReader( in_pElement, in_logger, in_wording ), m_place( in_pElement ) {}

private:
    ElementPlace m_place;
};

} // namespace Velquin::Pstn
