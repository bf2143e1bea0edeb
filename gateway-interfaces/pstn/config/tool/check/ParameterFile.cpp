#include "ParameterFile.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include <velquin/GlobalConfig.h>
#include <velquin/InputFile.h>
#include <velquin/ParameterInfoDB.h>
#include <velquin/pstn/RuleNames.h>
#include <velquin/pstn/Suggestion.h>

using Velquin::Finding;
using Velquin::Logger;
using Names = std::vector<std::string>;
namespace Rules = Velquin::Pstn::Rules;

namespace {

constexpr const char* BLANKS = " \t";
constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";

/// A parameter that the library reads, though another module declares it.
constexpr const char* INSTALLATION_FOLDER = "marovane.Installation.Directory";

/// What a line of the file says. An empty line and a comment have no name.
struct Line {
    std::string strName;
    std::size_t uBegin = 0; ///< where the name begins
    bool bEqual = false;    ///< whether the name ends at a `=`
    bool bValue = false;    ///< whether something stands behind that
};

Line parse( const std::string& in_strLine ) {
    const std::size_t uBegin = in_strLine.find_first_not_of( BLANKS );
    const std::size_t uEqual = in_strLine.find( '=' );
    const bool bEqual = uEqual != std::string::npos;
    if ( uBegin == std::string::npos || in_strLine[uBegin] == '#' || uBegin == uEqual )
        return {};
    const std::size_t uEnd = bEqual ? in_strLine.find_last_not_of( BLANKS, uEqual - 1 ) + 1
                                    : std::min( in_strLine.find_first_of( " \t:", uBegin ), in_strLine.size() );
    return { in_strLine.substr( uBegin, uEnd - uBegin ), uBegin, bEqual,
             bEqual && in_strLine.find_first_not_of( BLANKS, uEqual + 1 ) != std::string::npos };
}

bool contains( const Names& in_vecNames, const std::string& in_strName ) {
    return std::count( in_vecNames.begin(), in_vecNames.end(), in_strName ) > 0;
}

std::string quote( const std::string& in_strName ) {
    return "\"" + in_strName + "\"";
}

/// Whether the name is meant for this library: it begins as one of the declared names, up to the last point.
bool isMeant( const std::string& in_strName, const Names& in_vecDeclared ) {
    return std::any_of( in_vecDeclared.begin(), in_vecDeclared.end(), [&]( const std::string& in_strDeclared ) {
        return in_strName.starts_with( in_strDeclared.substr( 0, in_strDeclared.rfind( '.' ) + 1 ) );
    } );
}

/// Whether the gateway has a value for the parameter that isn't empty.
bool isSet( const std::string& in_strName ) {
    std::string strValue;
    return Velquin::GlobalConfig::getInstance().getString( in_strName.c_str(), strValue ) && !strValue.empty();
}

/// What is wrong with a line.
struct LineFault {
    std::string strMessage; ///< empty when nothing is
    std::string strHint{};
    std::string strMeant{}; ///< the parameter that the line was to set; empty when nobody knows
    const char* szRule = Rules::UNKNOWN_PARAMETER;
};

/// @param in_bMarked whether a byte order mark stands in front of the line
LineFault findFault( const Line& in_line, bool in_bMarked, const Names& in_vecMissing ) {
    const std::string& strName = in_line.strName;
    Names vecKnown;
    for ( const auto& parameter : Velquin::ParameterInfoDB::getNonConstInstance().getParameters() )
        vecKnown.push_back( parameter.strName );
    const bool bMeant = isMeant( strName, vecKnown );
    vecKnown.emplace_back( INSTALLATION_FOLDER );
    const std::string strNearest = Velquin::Pstn::findNearest( strName, vecKnown );
    if ( !in_line.bEqual )
        return { "line without \"=\"", "the gateway ignores it; write name=value, or # in front of a comment",
                 strNearest };
    if ( in_bMarked )
        return { "byte order mark in front of " + quote( strName ),
                 "the gateway takes it for a part of the name; save the file as UTF-8 without it", strNearest };
    if ( !contains( vecKnown, strName ) )
        return strNearest.empty() && !bMeant
                   ? LineFault{}
                   : LineFault{ "unknown parameter " + quote( strName ),
                                Velquin::Pstn::describeNames( strName, vecKnown ), strNearest };
    if ( !in_line.bValue && contains( in_vecMissing, strName ) )
        return { "parameter " + quote( strName ) + " has no value", "write the path behind \"=\"", strName,
                 Rules::MISSING_PARAMETER };
    return {};
}

} // namespace

CheckedFile checkParameters( const std::string& in_strFile, const Names& in_vecRequired,
                             const CheckRequest& in_request ) {
    Names vecLines;
    std::ifstream stream;
    Velquin::openInputFile( in_strFile.c_str(), stream );
    for ( std::string strLine; std::getline( stream, strLine ); )
        vecLines.push_back( strLine.substr( 0, strLine.find_last_not_of( '\r' ) + 1 ) );
    const bool bMarked = !vecLines.empty() && vecLines[0].starts_with( BYTE_ORDER_MARK );
    if ( bMarked )
        vecLines[0].erase( 0, BYTE_ORDER_MARK.size() );
    Names vecMissing = in_vecRequired;
    std::erase_if( vecMissing, isSet );

    CheckedFile file;
    file.strFile = in_strFile;
    for ( std::size_t u = 0; u < vecLines.size(); ++u ) {
        const Line line = parse( vecLines[u] );
        if ( line.strName.empty() )
            continue;
        const LineFault fault = findFault( line, bMarked && u == 0, vecMissing );
        // A required parameter is missing because its line is wrong: that is one mistake.
        const bool bRequired = !fault.strMessage.empty() && std::erase( vecMissing, fault.strMeant ) > 0;
        if ( fault.strMessage.empty() || ( !bRequired && in_request.setDisabled.contains( fault.szRule ) ) )
            continue;
        Finding finding;
        finding.strRule = fault.szRule;
        finding.nLevel = bRequired ? Logger::ERROR_LEVEL : Logger::WARNING_LEVEL;
        finding.strFile = in_strFile;
        finding.ullLine = u + 1;
        finding.span = { u + 1, line.uBegin + 1, line.uBegin + 1 + line.strName.size() };
        finding.strMessage = fault.strMessage;
        finding.strHint = fault.strHint;
        file.add( std::move( finding ) );
    }
    for ( const std::string& strName : vecMissing ) {
        Finding finding;
        finding.strRule = Rules::MISSING_PARAMETER;
        finding.strFile = in_strFile;
        finding.strMessage = "missing parameter " + quote( strName );
        finding.strHint = "add the line " + strName + "=PATH";
        file.add( std::move( finding ) );
    }
    file.eVerdict = file.counts.uErrors > 0 ? Verdict::INVALID : Verdict::VALID;
    file.getLine = [vecLines = std::move( vecLines )]( unsigned long long in_ullLine ) -> std::string_view {
        return in_ullLine <= vecLines.size() ? vecLines[in_ullLine - 1] : std::string_view();
    };
    return file;
}
