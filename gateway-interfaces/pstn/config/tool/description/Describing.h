#pragma once

#include <velquin/Fallible.h>
#include <velquin/pstn/PstnConfig.h>

#include "ModelDescription.h"

// What the descriptions of all classes share.

namespace Velquin::Pstn {

/// The keyword that the file has for the value; null for a value without keyword.
template <class TTable, class T>
Json keyword( const TTable& in_table, const T& in_value ) {
    const std::string_view strKeyword = in_table.keywordOf( in_value );
    return strKeyword.empty() ? Json() : Json( strKeyword );
}

template <class T>
Json optional( const Fallible<T>& in_value ) {
    return in_value.isSet() ? Json( in_value.get() ) : Json();
}

/// Adds an entry under a key that the object doesn't have: an object of many entries isn't searched.
void append( Json& inout_object, std::string in_strKey, Json in_value );

/// Adds to each object of settings the list of those that have the value of a fresh object.
void markDefaults( Json& inout_settings, const Json& in_fresh );

/// The settings of an object, with those that are as in `in_fresh`. Calls `describe`, which the file has for the class.
template <class T>
Json describeMarked( const T& in_object, const T& in_fresh ) {
    Json settings = describe( in_object );
    markDefaults( settings, describe( in_fresh ) );
    return settings;
}

/// The settings of what a handle holds, if it holds something of that class; else null.
template <class T, class THandle>
Json describePart( const THandle& in_handle ) {
    const auto* const pPart = in_handle.isNull() ? nullptr : dynamic_cast<const T*>( in_handle.get() );
    return pPart ? describeMarked( *pPart, T() ) : Json();
}

/// The short identifiers of interfaces, in their order.
template <class TInterfaces>
Json listInterfaces( const TInterfaces& in_interfaces ) {
    Json ids = Json::array();
    for ( const auto& pInterface : in_interfaces )
        ids.push_back( pInterface->getUniqueId( true ) );
    return ids;
}

Json describePhysical( const AnalogInterfacePhysicalConfig& in_physical );
Json describePhysical( const DigitalInterfacePhysicalConfig& in_physical );

/// Adds the sections of channel groups, ISDN and analog call control.
/// @param in_pCallControl null when there is none
void describeCallControl( Json& inout_model, const CallControlConfig* in_pCallControl );

} // namespace Velquin::Pstn
