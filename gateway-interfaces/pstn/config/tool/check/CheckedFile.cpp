#include "CheckedFile.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include <velquin/pstn/RuleNames.h>
#include <velquin/pstn/survey/Survey.h>

using Velquin::Finding;
using Velquin::Logger;
using Velquin::Pstn::Survey;
namespace Rules = Velquin::Pstn::Rules;

namespace {

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

CheckedFile checkFile( const InputFile& in_input, const CheckRequest& in_request ) {
    // The model of the last file ends with the process: to release it object by object would take a tenth of the CPU
    // time.
    static Survey* s_pSurvey = nullptr;
    delete std::exchange( s_pSurvey, nullptr );
    s_pSurvey = new Survey();
    const bool bLoads =
        s_pSurvey->run( in_input.getPath().c_str(), in_request.strSchema.c_str(), in_request.bLogContent );

    CheckedFile file;
    file.strFile = in_input.getName();
    file.getLine = [pSurvey = s_pSurvey]( unsigned long long in_ullLine ) { return pSurvey->getLine( in_ullLine ); };
    bool bChecked = true;
    for ( const Finding& finding : s_pSurvey->getFindings() ) {
        bChecked = bChecked && !preventsCheck( finding );
        if ( !isWanted( finding, in_request ) )
            continue;
        file.add( finding );
        in_input.rename( file.vecFindings.back() );
    }
    file.eVerdict = bLoads      ? file.counts.uErrors > 0 ? Verdict::PARTIAL : Verdict::VALID
                    : !bChecked ? Verdict::UNCHECKED
                                : Verdict::INVALID;
    return file;
}
