#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include <velquin/Finding.h>

#include "RuleNames.h"
#include "SourcePlace.h"
#include "document/Element.h"
#include "reading/KeywordTable.h"
#include "reading/Number.h"

namespace Velquin::Pstn {

/// The words in messages that differ from reader to reader. A message about an attribute reads
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

// A rule says which values an attribute takes, and what the message about any other value says. It is one of the types
// below or a KeywordTable, which gives no hint.

struct NumberRule {
    NumberPolicy ePolicy;
    std::string_view strHint;
    const char* szReportedName = nullptr; ///< the attribute's name in the message; null for the attribute's own
};

inline constexpr std::string_view DECIMAL_HINT = "The value must be a decimal number.";
/// The rules of most readers: the leading number, or nothing but the number.
inline constexpr NumberRule LEADING_DECIMAL{ NumberPolicy::LEADING, DECIMAL_HINT };
inline constexpr NumberRule WHOLE_DECIMAL{ NumberPolicy::WHOLE, DECIMAL_HINT };

/// Any text that the setter takes. A setter that refuses reports why. With a hint, the reader reports it, too.
struct TextRule {
    std::string_view strHint;
    std::string_view strAdvice{}; ///< the same for people; empty when the hint says it
};

inline constexpr TextRule ANY_TEXT{};

template <class E, std::size_t N>
struct HintedKeywords {
    const KeywordTable<E, N>& table;
    std::string_view strHint;
};

/// Takes the keywords of the table. Any other value is reported as invalid, with the hint.
template <class E, std::size_t N>
constexpr HintedKeywords<E, N> hinted( const KeywordTable<E, N>& in_table, std::string_view in_strHint ) {
    return { in_table, in_strHint };
}

template <class E, std::size_t N>
struct SchemaKeywords {
    const KeywordTable<E, N>& table;
    SourcePlace where;
};

/// Takes the keywords of the table, where the schema takes nothing else either. Any other value is an assertion; its
/// text compares the attribute with the keywords.
template <class E, std::size_t N>
constexpr SchemaKeywords<E, N> bySchema( const KeywordTable<E, N>& in_table,
                                         SourcePlace in_where = SourcePlace::current() ) {
    return { in_table, in_where };
}

class ElementReader;

/// Reads the attributes and children of one element. When something is absent or wrong, an operation reports it in the
/// reader's words and yields false (or null): the caller only returns.
class AttributeReader {
public:
    AttributeReader( xmlNode* in_pElement, const Logger& in_logger, const ReaderWording& in_wording ) noexcept
        : m_pElement( in_pElement ), m_pLogger( &in_logger ), m_pWording( &in_wording ) {}

    /// Reads the same element with other words.
    AttributeReader as( const ReaderWording& in_wording ) const noexcept {
        return { m_pElement, *m_pLogger, in_wording };
    }

    xmlNode* getElement() const noexcept { return m_pElement; }
    const Logger& getLogger() const noexcept { return *m_pLogger; }
    const char* getName() const noexcept { return getElementName( m_pElement ); }

    /// Reads a required attribute into the model.
    template <class TRule, class TConfig, class TSetter>
    bool require( const char* in_szAttribute, const TRule& in_rule, TConfig& out_config, TSetter in_set ) const {
        return requireKey( in_szAttribute, in_rule, out_config, in_set ) || passOver();
    }

    /// The same for an attribute on which the rest of the element depends: its identifier, its kind. Without it, an
    /// EntryListener has nothing to go on with.
    template <class TRule, class TConfig, class TSetter>
    bool requireKey( const char* in_szAttribute, const TRule& in_rule, TConfig& out_config, TSetter in_set ) const {
        AttributeText text;
        return requireText( in_szAttribute, text ) && setFrom( text, in_szAttribute, in_rule, out_config, in_set );
    }

    /// Reads an optional attribute into the model. When it is absent, the model keeps what it has.
    template <class TRule, class TConfig, class TSetter>
    bool accept( const char* in_szAttribute, const TRule& in_rule, TConfig& out_config, TSetter in_set ) const {
        AttributeText text;
        return !findText( in_szAttribute, text ) || setFrom( text, in_szAttribute, in_rule, out_config, in_set ) ||
               passOver();
    }

    /// Reads a required attribute into a variable. A reader that can do without it asks passOver().
    template <class TRule, class T>
    bool require( const char* in_szAttribute, const TRule& in_rule, T& out_value ) const {
        AttributeText text;
        return requireText( in_szAttribute, text ) && take( text, in_szAttribute, in_rule, out_value );
    }

    /// Hands out the text of a required attribute. A reader that can do without it asks passOver().
    bool requireText( const char* in_szAttribute, AttributeText& out_text ) const;

    /// Whether the attribute is there. Reports nothing.
    bool findText( const char* in_szAttribute, AttributeText& out_text ) const;
    bool has( const char* in_szAttribute ) const;

    /// Takes the value of a text that was read before. Reports a value that the rule refuses.
    template <class T>
    bool take( const AttributeText& in_text, const char* in_szAttribute, const NumberRule& in_rule,
               T& out_number ) const {
        const std::optional<T> number = parseNumber<T>( in_text.view(), in_rule.ePolicy );
        if ( number )
            out_number = *number;
        else
            reportInvalid(
                { in_szAttribute, in_rule.szReportedName, in_text.view(), Rules::INVALID_VALUE, describeNumbers<T>() },
                in_rule.strHint );
        return number.has_value();
    }

    template <class E, std::size_t N>
    bool take( const AttributeText& in_text, const char* in_szAttribute, const HintedKeywords<E, N>& in_rule,
               E& out_value ) const {
        const E* const pValue = in_rule.table.find( in_text.view() );
        if ( pValue )
            out_value = *pValue;
        else
            reportInvalid( { in_szAttribute, nullptr, in_text.view(), Rules::INVALID_VALUE,
                             describeValues( in_rule.table.getKeywords() ) },
                           in_rule.strHint );
        return pValue != nullptr;
    }

    template <class E, std::size_t N>
    bool take( const AttributeText& in_text, const char* in_szAttribute, const KeywordTable<E, N>& in_table,
               E& out_value ) const {
        return take( in_text, in_szAttribute, hinted( in_table, {} ), out_value );
    }

    template <class E, std::size_t N>
    bool take( const AttributeText& in_text, const char* in_szAttribute, const SchemaKeywords<E, N>& in_rule,
               E& out_value ) const {
        const E* const pValue = in_rule.table.find( in_text.view() );
        if ( pValue )
            out_value = *pValue;
        else
            assertKeyword( in_szAttribute, in_text.view(), in_rule.table.getKeywords(), in_rule.where );
        return pValue != nullptr;
    }

    /// Reads the first child element of that name, which is required, with the same logger and words.
    /// @param in_read called with the child's reader and the other arguments; yields whether all went well
    template <class TRead, class... TArguments>
    bool readChild( const char* in_szName, const TRead& in_read, TArguments&... inout_arguments ) const;

    /// The first child element of that name; null, after a report, when there is none.
    xmlNode* requireChild( const char* in_szName ) const;

    /// Reports that the attribute is missing.
    /// @param in_strAdvice what would be right, for people
    void reportMissing( const char* in_szAttribute, std::string in_strAdvice = {} ) const;
    /// Reports that a required child element is missing; `in_strName` may name alternatives.
    /// @param in_szReportedName what the log line calls it; null for its name
    void reportMissingChild( std::string_view in_strName, const char* in_szReportedName = nullptr ) const;
    /// Reports that the value is refused.
    void reportInvalid( const char* in_szAttribute, std::string_view in_strValue, std::string_view in_strHint = {},
                        const char* in_szRule = Rules::INVALID_VALUE ) const {
        reportInvalid( { in_szAttribute, nullptr, in_strValue, in_szRule, {} }, in_strHint );
    }

    /// Whether a reader goes on behind an attribute or a part that it reported.
    static bool passOver();

    /// A value that is refused.
    struct RefusedValue {
        const char* szAttribute;
        const char* szReportedName; ///< the attribute's name in the log line; null for the attribute's own
        std::string_view strValue;
        const char* szRule;
        std::string strAdvice; ///< what would be right, for people; empty when the log line's hint says it
    };
    /// @param in_strHint the end of the log line
    void reportInvalid( const RefusedValue& in_refused, std::string_view in_strHint ) const;
    /// Reports subject + " declared in file " + file + " at line " + line + tail.
    /// @param in_finding holds what else is known of the fault
    void reportDeclared( std::string_view in_strSubject, std::string_view in_strTail, Finding in_finding = {} ) const;

private:
    void reportMissing( Finding in_finding, const char* in_szReportedName ) const;
    void report( Finding in_finding, std::string_view in_strLead, std::string_view in_strMiddle,
                 std::string_view in_strTail ) const;
    void assertKeyword( const char* in_szAttribute, std::string_view in_strValue,
                        std::span<const std::string_view> in_aKeywords, SourcePlace in_where ) const;

    template <class TConfig, class TOwner, class TResult, class TValue, class TRule>
    bool setFrom( const AttributeText& in_text, const char* in_szAttribute, const TRule& in_rule, TConfig& out_config,
                  TResult ( TOwner::*in_set )( TValue ) ) const {
        std::remove_cvref_t<TValue> value{};
        if ( !take( in_text, in_szAttribute, in_rule, value ) )
            return false;
        if constexpr ( !std::is_void_v<TResult> )
            return ( out_config.*in_set )( value );
        ( out_config.*in_set )( value );
        return true;
    }

    template <class TConfig, class TOwner>
    bool setFrom( const AttributeText& in_text, const char* in_szAttribute, const TextRule& in_rule,
                  TConfig& out_config, bool ( TOwner::*in_set )( const char* ) ) const {
        const bool bTaken = ( out_config.*in_set )( in_text.c_str() );
        if ( !bTaken && !in_rule.strHint.empty() )
            reportInvalid(
                { in_szAttribute, nullptr, in_text.view(), Rules::INVALID_VALUE, std::string( in_rule.strAdvice ) },
                in_rule.strHint );
        return bTaken;
    }

    xmlNode* m_pElement;
    const Logger* m_pLogger;
    const ReaderWording* m_pWording;
};

/// Makes an element the place of what model operations report while this object lives.
class ElementPlace : private FindingPlace {
public:
    /// @param in_strPath the element's path; empty when it is not known yet. The text outlives this object
    explicit ElementPlace( const xmlNode* in_pElement, std::string_view in_strPath = {} ) noexcept
        : m_pElement( in_pElement ), m_strPath( in_strPath ) {}

private:
    void locate( Finding& inout_finding ) const override;

    const xmlNode* m_pElement;
    std::string_view m_strPath;
};

/// Stands between libxml2 and a reader while the reader works on its element: reads attributes and children, and is the
/// place of whatever the model refuses meanwhile.
class ElementReader : public AttributeReader {
public:
    ElementReader( xmlNode* in_pElement, const Logger& in_logger, const ReaderWording& in_wording ) noexcept
        : AttributeReader( in_pElement, in_logger, in_wording ), m_place( in_pElement ) {}

private:
    ElementPlace m_place;
};

template <class TRead, class... TArguments>
bool AttributeReader::readChild( const char* in_szName, const TRead& in_read, TArguments&... inout_arguments ) const {
    xmlNode* const pChild = requireChild( in_szName );
    return pChild && in_read( ElementReader( pChild, *m_pLogger, *m_pWording ), inout_arguments... );
}

} // namespace Velquin::Pstn
