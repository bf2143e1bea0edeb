#include "ParameterFile.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include <velquin/GlobalConfig.h>
#include <velquin/ParameterInfoDB.h>
#include <velquin/pstn/RuleNames.h>
#include <velquin/pstn/Suggestion.h>

#include "../Utf8Path.h"

using Velquin::Finding;
using Velquin::Logger;

namespace {

constexpr const char* BLANKS = " \t\r";

/// The name in a line `name=value`, and where it begins; empty for other lines.
std::pair<std::string, std::size_t> getName( const std::string& in_strLine ) {
    const std::size_t uBegin = in_strLine.find_first_not_of( BLANKS );
    const std::size_t uEqual = in_strLine.find( '=' );
    if ( uEqual == std::string::npos || in_strLine[uBegin] == '#' || uBegin == uEqual )
        return {};
    return { in_strLine.substr( uBegin, in_strLine.find_last_not_of( BLANKS, uEqual - 1 ) + 1 - uBegin ), uBegin };
}

/// The names of the library's parameters.
std::vector<std::string> getKnownNames() {
    std::vector<std::string> vecNames;
    for ( const auto& parameter : Velquin::ParameterInfoDB::getNonConstInstance().getParameters() )
        vecNames.push_back( parameter.strName );
    return vecNames;
}

/// Whether the name is meant for this library: it begins as one of its names, up to the last point.
bool isMeant( const std::string& in_strName, const std::vector<std::string>& in_vecKnown ) {
    return std::any_of( in_vecKnown.begin(), in_vecKnown.end(), [&]( const std::string& in_strKnown ) {
        return in_strName.starts_with( in_strKnown.substr( 0, in_strKnown.rfind( '.' ) + 1 ) );
    } );
}

bool isSet( const std::string& in_strName ) {
    std::string strValue;
    return Velquin::GlobalConfig::getInstance().getString( in_strName.c_str(), strValue );
}

} // namespace

CheckedFile checkParameters( const std::string& in_strFile, const std::vector<std::string>& in_vecRequired,
                             const CheckRequest& in_request ) {
    std::vector<std::string> vecLines;
    std::ifstream stream( toPath( in_strFile ) );
    for ( std::string strLine; std::getline( stream, strLine ); )
        vecLines.push_back( strLine );
    std::vector<std::string> vecMissing = in_vecRequired;
    std::erase_if( vecMissing, isSet );

    CheckedFile file;
    file.strFile = in_strFile;
    const std::vector<std::string> vecKnown = getKnownNames();
    for ( std::size_t u = 0; u < vecLines.size(); ++u ) {
        const auto [strName, uBegin] = getName( vecLines[u] );
        // What the gateway didn't take for a name is none.
        if ( std::count( vecKnown.begin(), vecKnown.end(), strName ) > 0 || !isSet( strName ) )
            continue;
        const std::string strNearest = Velquin::Pstn::findNearest( strName, vecKnown );
        if ( strNearest.empty() && !isMeant( strName, vecKnown ) )
            continue;
        // A required parameter is missing because its name is misspelt: that is one mistake.
        const bool bRequired = std::erase( vecMissing, strNearest ) > 0;
        if ( !bRequired && in_request.setDisabled.contains( Velquin::Pstn::Rules::UNKNOWN_PARAMETER ) )
            continue;
        Finding finding;
        finding.strRule = Velquin::Pstn::Rules::UNKNOWN_PARAMETER;
        finding.nLevel = bRequired ? Logger::ERROR_LEVEL : Logger::WARNING_LEVEL;
        finding.strFile = in_strFile;
        finding.ullLine = u + 1;
        finding.span = { u + 1, uBegin + 1, uBegin + 1 + strName.size() };
        finding.strMessage = "unknown parameter \"" + strName + "\"";
        finding.strHint = Velquin::Pstn::describeNames( strName, vecKnown );
        file.add( std::move( finding ) );
    }
    for ( const std::string& strName : vecMissing ) {
        Finding finding;
        finding.strRule = Velquin::Pstn::Rules::MISSING_PARAMETER;
        finding.strFile = in_strFile;
        finding.strMessage = "missing parameter \"" + strName + "\"";
        file.add( std::move( finding ) );
    }
    file.eVerdict = file.counts.uErrors > 0 ? Verdict::INVALID : Verdict::VALID;
    file.getLine = [vecLines = std::move( vecLines )]( unsigned long long in_ullLine ) -> std::string_view {
        return in_ullLine <= vecLines.size() ? vecLines[in_ullLine - 1] : std::string_view();
    };
    return file;
}
