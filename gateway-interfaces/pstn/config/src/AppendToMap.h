#pragma once

#include <cstddef>
#include <utility>

namespace Velquin::Pstn {

/// Adds the entry unless its key is taken; only then the value is moved from. Documents mostly list what they declare
/// in ascending order, so that the end of the map is tried before the key is searched for. May throw.
template <class TMap, class TKey>
bool appendToMap( TMap& inout_map, TKey&& in_key, typename TMap::mapped_type& inout_value ) {
    const std::size_t uSize = inout_map.size();
    inout_map.try_emplace( inout_map.end(), std::forward<TKey>( in_key ), std::move( inout_value ) );
    return inout_map.size() > uSize;
}

} // namespace Velquin::Pstn
