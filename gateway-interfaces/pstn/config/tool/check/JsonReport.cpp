#include "../description/ModelDescription.h"
#include "Report.h"

using Velquin::Finding;
using Velquin::SourceSpan;
using Velquin::Pstn::Json;

namespace {

constexpr int FORMAT_VERSION = 1;
constexpr const char* VERDICT_NAMES[VERDICTS] = { "valid", "partial", "invalid", "unchecked" };

void addText( Json& inout_object, const char* in_szName, const std::string& in_strText ) {
    if ( !in_strText.empty() )
        inout_object[in_szName] = in_strText;
}

/// File, line and columns, as far as they are known.
template <class T>
void addPlace( Json& inout_object, const T& in_place ) {
    addText( inout_object, "file", in_place.strFile );
    const SourceSpan span = getSpan( in_place );
    if ( span.ullLine != 0 )
        inout_object["line"] = span.ullLine;
    if ( span.ullColumn != 0 ) {
        inout_object["column"] = span.ullColumn;
        inout_object["endColumn"] = span.ullEndColumn;
    }
}

Json toJson( const MistakeCounts& in_counts ) {
    return { { "errors", in_counts.uErrors }, { "warnings", in_counts.uWarnings }, { "notes", in_counts.uNotes } };
}

Json toJson( const Finding& in_finding ) {
    Json object = Json::object();
    addText( object, "rule", in_finding.strRule );
    object["severity"] = getSeverityName( in_finding );
    object["message"] = Velquin::describeFinding( in_finding );
    addPlace( object, in_finding );
    addText( object, "element", in_finding.strElementPath );
    addText( object, "attribute", in_finding.strAttribute );
    if ( in_finding.eKind == Finding::Kind::INVALID_VALUE )
        object["value"] = in_finding.strValue;
    addText( object, "hint", in_finding.strHint );
    object["echo"] = in_finding.bEcho;
    Json& related = object["related"] = Json::array();
    for ( const Finding::Related& place : in_finding.vecRelated ) {
        Json item = { { "label", place.strLabel } };
        addPlace( item, place );
        related.push_back( std::move( item ) );
    }
    return object;
}

class JsonReport : public Report {
public:
    explicit JsonReport( std::ostream& inout_stream ) : m_stream( inout_stream ) {}

    void add( const CheckedFile& in_file ) override {
        Json file = { { "file", in_file.strFile },
                      { "verdict", VERDICT_NAMES[static_cast<std::size_t>( in_file.eVerdict )] },
                      { "counts", toJson( in_file.counts ) } };
        Json& findings = file["findings"] = Json::array();
        for ( const Finding& finding : in_file.vecFindings )
            findings.push_back( toJson( finding ) );
        m_files.push_back( std::move( file ) );
    }

    void finish( const CheckTotals& in_totals ) override {
        Json verdicts = Json::object();
        for ( std::size_t u = 0; u < VERDICTS; ++u )
            verdicts[VERDICT_NAMES[u]] = in_totals.auFiles[u];
        const Json document = { { "format", "pstnconfig-check" },      { "version", FORMAT_VERSION },
                                { "tool", PSTNCONFIG_VERSION },        { "files", std::move( m_files ) },
                                { "verdicts", std::move( verdicts ) }, { "counts", toJson( in_totals.counts ) } };
        m_stream << Velquin::Pstn::toText( document, 2 ) << '\n';
    }

private:
    std::ostream& m_stream;
    Json m_files = Json::array();
};

} // namespace

std::unique_ptr<Report> makeJsonReport( std::ostream& inout_stream ) {
    return std::make_unique<JsonReport>( inout_stream );
}
