#include "CheckedFile.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <optional>
#include <utility>

#include <velquin/pstn/RuleNames.h>
#include <velquin/pstn/survey/Survey.h>

#include "StandardInput.h"

using Velquin::Finding;
using Velquin::Logger;
using Velquin::Pstn::Survey;
namespace Rules = Velquin::Pstn::Rules;

namespace {

/// Gives standard input its name back.
void renameInput( Finding& inout_finding, const std::string& in_strPath ) {
    for ( std::string* const pText : { &inout_finding.strFile, &inout_finding.strMessage, &inout_finding.strText } ) {
        for ( std::size_t u = pText->find( in_strPath ); u != std::string::npos; u = pText->find( in_strPath, u ) )
            pText->replace( u, in_strPath.size(), StandardInput::NAME );
    }
    for ( Finding::Related& related : inout_finding.vecRelated ) {
        if ( related.strFile == in_strPath )
            related.strFile = StandardInput::NAME;
    }
}

bool preventsCheck( const Finding& in_finding ) {
    return in_finding.strRule == Rules::UNREADABLE_FILE || in_finding.strRule == Rules::UNUSABLE_SCHEMA;
}

bool isWanted( const Finding& in_finding, const CheckRequest& in_request ) {
    return in_finding.bEcho
               ? in_request.bEchoes
               : in_finding.nLevel >= Logger::ERROR_LEVEL || !in_request.setDisabled.contains( in_finding.strRule );
}

} // namespace

const char* getSeverityName( const Finding& in_finding ) {
    return in_finding.nLevel >= Logger::ERROR_LEVEL     ? "error"
           : in_finding.nLevel >= Logger::WARNING_LEVEL ? "warning"
                                                        : "note";
}

void MistakeCounts::add( const Finding& in_finding ) {
    if ( !in_finding.bEcho )
        ++( in_finding.nLevel >= Logger::ERROR_LEVEL     ? uErrors
            : in_finding.nLevel >= Logger::WARNING_LEVEL ? uWarnings
                                                         : uNotes );
}

void MistakeCounts::add( const MistakeCounts& in_other ) {
    uErrors += in_other.uErrors;
    uWarnings += in_other.uWarnings;
    uNotes += in_other.uNotes;
}

void CheckedFile::add( Finding in_finding ) {
    counts.add( in_finding );
    vecFindings.push_back( std::move( in_finding ) );
}

void CheckTotals::add( const CheckedFile& in_file ) {
    ++auFiles[static_cast<std::size_t>( in_file.eVerdict )];
    counts.add( in_file.counts );
}

unsigned int CheckTotals::getFiles() const {
    return std::accumulate( std::begin( auFiles ), std::end( auFiles ), 0U );
}

CheckedFile checkFile( const std::string& in_strFile, const CheckRequest& in_request ) {
    std::optional<StandardInput> input;
    if ( in_strFile == "-" )
        input.emplace();
    const std::string& strPath = input ? input->getPath() : in_strFile;

    // The model of the last file ends with the process: to release it object by object would take a tenth of the CPU
    // time.
    static Survey* s_pSurvey = nullptr;
    delete std::exchange( s_pSurvey, nullptr );
    s_pSurvey = new Survey();
    const bool bLoads = s_pSurvey->run( strPath.c_str(), in_request.strSchema.c_str(), in_request.bLogContent );

    CheckedFile file;
    file.strFile = input ? StandardInput::NAME : in_strFile;
    file.getLine = [pSurvey = s_pSurvey]( unsigned long long in_ullLine ) { return pSurvey->getLine( in_ullLine ); };
    bool bChecked = true;
    for ( const Finding& finding : s_pSurvey->getFindings() ) {
        bChecked = bChecked && !preventsCheck( finding );
        if ( !isWanted( finding, in_request ) )
            continue;
        file.add( finding );
        if ( input )
            renameInput( file.vecFindings.back(), strPath );
    }
    file.eVerdict = bLoads      ? file.counts.uErrors > 0 ? Verdict::PARTIAL : Verdict::VALID
                    : !bChecked ? Verdict::UNCHECKED
                                : Verdict::INVALID;
    return file;
}
