#include "MapStyle.h"

using Look = ChannelMap::Look;

std::string getCode( std::size_t in_uGroup ) {
    constexpr std::string_view LETTERS = "ABCEFGHIJKLMNOPQRSTUVWXYZ";
    const std::string strLast( 1, LETTERS[in_uGroup % LETTERS.size()] );
    return in_uGroup < LETTERS.size() ? strLast : getCode( in_uGroup / LETTERS.size() - 1 ) + strLast;
}

std::string getMark( const ChannelMap::Run& in_run ) {
    switch ( in_run.getLook() ) {
    case Look::FREE:
    case Look::FRAMING:
        return "";
    case Look::D_CHANNEL:
        return "D";
    case Look::CONFLICT:
        return "!";
    case Look::GROUP:
    case Look::SHARED:
        break;
    }
    std::string strMark;
    for ( const std::size_t uGroup : in_run.vecGroups )
        strMark += ( strMark.empty() ? "" : "+" ) + getCode( uGroup );
    return strMark;
}

std::string getLabel( const ChannelMap& in_map, const ChannelMap::Run& in_run ) {
    std::string strLabel = getMark( in_run );
    if ( in_run.getLook() == Look::GROUP || in_run.getLook() == Look::SHARED ) {
        for ( const std::size_t uGroup : in_run.vecGroups )
            strLabel += ( uGroup == in_run.vecGroups.front() ? " " : " + " ) + in_map.getGroups()[uGroup].strId;
    }
    return strLabel;
}

std::string getMeaning( ChannelMap::Look in_eLook ) {
    switch ( in_eLook ) {
    case Look::FREE:
        return "free";
    case Look::FRAMING:
        return "framing";
    case Look::D_CHANNEL:
        return "D-channel";
    case Look::SHARED:
        return "in several groups";
    case Look::CONFLICT:
        return "in a group, but no bearer channel";
    case Look::GROUP:
        break;
    }
    return "";
}
