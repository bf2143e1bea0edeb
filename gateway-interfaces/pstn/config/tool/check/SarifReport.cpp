#include <cctype>
#include <filesystem>
#include <map>

#include "../Utf8Path.h"
#include "../description/ModelDescription.h"
#include "Report.h"
#include "RuleHelp.h"

using Velquin::Finding;
using Velquin::SourceSpan;
using Velquin::Pstn::Json;

namespace {

/// A path as a URI: characters that a URI hasn't stand as %20.
std::string toUri( const std::string& in_strPath ) {
    const std::filesystem::path path = toPath( in_strPath );
    const std::string strPath = toUtf8( path.generic_u8string() );
    std::string strUri = !path.is_absolute() ? "" : strPath.starts_with( '/' ) ? "file://" : "file:///";
    for ( const char c : strPath ) {
        const auto byte = static_cast<unsigned char>( c );
        const bool bPlain =
            byte < 0x80 && ( std::isalnum( byte ) || std::string_view( "-._~/" ).find( c ) != std::string_view::npos );
        if ( bPlain ) {
            strUri += c;
        } else {
            constexpr const char* DIGITS = "0123456789ABCDEF";
            strUri += { '%', DIGITS[byte >> 4U], DIGITS[byte & 0xFU] };
        }
    }
    return strUri;
}

template <class T>
Json toLocation( const T& in_place, const std::string& in_strFile ) {
    Json physical = {
        { "artifactLocation", { { "uri", toUri( in_place.strFile.empty() ? in_strFile : in_place.strFile ) } } } };
    const SourceSpan span = getSpan( in_place );
    if ( span.ullLine != 0 ) {
        Json& region = physical["region"] = { { "startLine", span.ullLine } };
        if ( span.ullColumn != 0 ) {
            region["startColumn"] = span.ullColumn;
            region["endColumn"] = span.ullEndColumn;
        }
    }
    return { { "physicalLocation", std::move( physical ) } };
}

class SarifReport : public Report {
public:
    explicit SarifReport( std::ostream& inout_stream ) : m_stream( inout_stream ) {}

    void add( const CheckedFile& in_file ) override {
        for ( const Finding& finding : in_file.vecFindings )
            add( finding, in_file.strFile );
    }

    void finish( const CheckTotals& in_totals ) override {
        const Json driver = {
            { "name", "pstnconfig" }, { "version", PSTNCONFIG_VERSION }, { "rules", std::move( m_rules ) } };
        const bool bSuccessful = in_totals.getFiles( Verdict::UNCHECKED ) == 0;
        const Json run = { { "tool", { { "driver", driver } } },
                           { "invocations", Json::array( { { { "executionSuccessful", bSuccessful } } } ) },
                           { "columnKind", "unicodeCodePoints" },
                           { "results", std::move( m_results ) } };
        const Json document = { { "$schema", "https://json.schemastore.org/sarif-2.1.0.json" },
                                { "version", "2.1.0" },
                                { "runs", Json::array( { run } ) } };
        m_stream << Velquin::Pstn::toText( document, 2 ) << '\n';
    }

private:
    void add( const Finding& in_finding, const std::string& in_strFile ) {
        Json result = Json::object();
        if ( !in_finding.strRule.empty() )
            result["ruleId"] = in_finding.strRule;
        if ( const Velquin::Pstn::Rule* const pRule = Velquin::Pstn::findRule( in_finding.strRule ) )
            result["ruleIndex"] = addRule( *pRule );
        result["level"] = getSeverityName( in_finding );
        result["message"] = { { "text", Velquin::describeFinding( in_finding ) } };
        result["locations"] = Json::array( { toLocation( in_finding, in_strFile ) } );
        Json related = Json::array();
        for ( const Finding::Related& place : in_finding.vecRelated ) {
            Json location = { { "id", related.size() } };
            location.update( toLocation( place, in_strFile ) );
            location["message"] = { { "text", place.strLabel } };
            related.push_back( std::move( location ) );
        }
        if ( !related.empty() )
            result["relatedLocations"] = std::move( related );
        if ( in_finding.bEcho )
            result["properties"] = { { "echo", true } };
        m_results.push_back( std::move( result ) );
    }

    /// Describes the rule, unless that is done.
    /// @return its place in the list
    std::size_t addRule( const Velquin::Pstn::Rule& in_rule ) {
        const auto [it, bNew] = m_mapRules.emplace( in_rule.szName, m_rules.size() );
        if ( bNew )
            m_rules.push_back( { { "id", in_rule.szName },
                                 { "shortDescription", { { "text", in_rule.szTitle } } },
                                 { "help", { { "text", in_rule.szExplanation } } },
                                 { "defaultConfiguration", { { "level", getSeverityName( in_rule.eSeverity ) } } } } );
        return it->second;
    }

    std::ostream& m_stream;
    Json m_rules = Json::array();
    std::map<std::string, std::size_t> m_mapRules; ///< their places in the list
    Json m_results = Json::array();
};

} // namespace

std::unique_ptr<Report> makeSarifReport( std::ostream& inout_stream ) {
    return std::make_unique<SarifReport>( inout_stream );
}
