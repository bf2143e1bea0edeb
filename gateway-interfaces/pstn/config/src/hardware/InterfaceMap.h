#pragma once

#include <algorithm>
#include <map>
#include <vector>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>
#include <velquin/TSHandle.h>

#include "../AppendUnique.h"
#include "../RuleNames.h"

namespace Velquin::Pstn {

/// The interfaces of one board, by identifier. Serves analog and digital boards: they differ in the word for their kind
/// and in the logger. These operations may throw; the boards' operations must not.
template <class TInterface>
class InterfaceMap {
public:
    /// Adds the interface unless its identifier is taken. Moves from the handle only if it adds the interface.
    bool add( TSHandle<TInterface>& inout_hInterface, const char* in_szKind, const Logger& in_logger ) {
        VELQUIN_LOG_DEBUG( in_logger, "adding new " << in_szKind << " interface: " << inout_hInterface->getId() << "<"
                                                    << inout_hInterface->getDisplayName() << ">" );
        if ( appendUnique( m_map, inout_hInterface->getId(), inout_hInterface ) )
            return true;
        VELQUIN_REPORT( in_logger,
                        ( Fault{ Rules::IDENTIFIER_TWICE, "ID", std::to_string( inout_hInterface->getId() ) } ),
                        "failed to add new " << in_szKind << " interface: " << inout_hInterface->getId() << "<"
                                             << inout_hInterface->getDisplayName() << ">" );
        return false;
    }

    TSHandle<TInterface> get( unsigned int in_uId, const char* in_szKind, const Logger& in_logger ) const {
        VELQUIN_LOG_DEBUG( in_logger, "getting " << in_szKind << " interface: " << in_uId );
        const auto it = m_map.find( in_uId );
        if ( it != m_map.end() )
            return it->second;
        VELQUIN_REPORT_ERROR( in_logger, "failed to get " << in_szKind << " interface: " << in_uId );
        return {};
    }

    /// Fills the vector with all interfaces, ascending by identifier.
    void getAll( std::vector<TSHandle<TInterface>>& out_vecInterfaces, const char* in_szKind,
                 const Logger& in_logger ) const {
        VELQUIN_LOG_DEBUG( in_logger, "getting all " << in_szKind << " interfaces" );
        out_vecInterfaces.reserve( m_map.size() );
        for ( const auto& [uId, hInterface] : m_map )
            out_vecInterfaces.push_back( hInterface );
        // They are already in order, unless the identifier of an interface changed after it was added.
        if ( !std::is_sorted( out_vecInterfaces.begin(), out_vecInterfaces.end(), &isBefore ) )
            std::sort( out_vecInterfaces.begin(), out_vecInterfaces.end(), &isBefore );
    }

private:
    static bool isBefore( const TSHandle<TInterface>& in_hX, const TSHandle<TInterface>& in_hY ) {
        return VELQUIN_ASSERT( !in_hX.isNull() ) && VELQUIN_ASSERT( !in_hY.isNull() ) &&
               in_hX->getId() < in_hY->getId();
    }

    std::map<unsigned int, TSHandle<TInterface>> m_map;
};

} // namespace Velquin::Pstn
