#include "CheckedFile.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <memory>
#include <numeric>
#include <system_error>
#include <utility>

#include <velquin/pstn/RuleNames.h>
#include <velquin/pstn/survey/Survey.h>

#include "../Utf8Path.h"

using Velquin::Finding;
using Velquin::Logger;
using Velquin::Pstn::Survey;
namespace Rules = Velquin::Pstn::Rules;

namespace {

/// Whether nothing is known of the file after this finding: one of the two can't be read, or the schema is none.
bool preventsCheck( const Finding& in_finding, const CheckRequest& in_request ) {
    return in_finding.strRule == Rules::UNREADABLE_FILE || in_finding.strRule == Rules::UNUSABLE_SCHEMA ||
           ( in_finding.strFile == in_request.strSchema && in_finding.nLevel >= Logger::ERROR_LEVEL );
}

/// Whether a pipe or a device stands there, which the library doesn't open.
bool isStream( const std::string& in_strPath ) {
    std::error_code ignored;
    return std::filesystem::is_other( toPath( in_strPath ), ignored );
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

CheckedFile checkFile( const FileArgument& in_input, const CheckRequest& in_request ) {
    const auto pSurvey = std::make_shared<Survey>();
    const bool bLoads =
        pSurvey->run( in_input.getPath().c_str(), in_request.strSchema.c_str(), in_request.bLogContent );

    CheckedFile file;
    file.strFile = in_input.getName();
    file.getLine = [pSurvey]( unsigned long long in_ullLine ) { return pSurvey->getLine( in_ullLine ); };
    bool bChecked = true;
    for ( const Finding& finding : pSurvey->getFindings() ) {
        bChecked = bChecked && !preventsCheck( finding, in_request );
        if ( !isWanted( finding, in_request ) )
            continue;
        file.add( finding );
        Finding& added = file.vecFindings.back();
        if ( added.strRule == Rules::UNREADABLE_FILE && added.strFile == in_input.getPath() &&
             isStream( added.strFile ) )
            added.strHint = "hand it over as standard input, named -";
        in_input.rename( added );
    }
    file.eVerdict = bLoads      ? file.counts.uErrors > 0 ? Verdict::PARTIAL : Verdict::VALID
                    : !bChecked ? Verdict::UNCHECKED
                                : Verdict::INVALID;
    return file;
}
