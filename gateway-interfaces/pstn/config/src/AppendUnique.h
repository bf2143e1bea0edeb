#pragma once

#include <cstddef>
#include <utility>

namespace Velquin::Pstn {

// Documents mostly list things in ascending order: these functions try the end of an ordered container before they
// search for the place. They neither add nor move from an item that is already there. May throw.

template <class TMap, class TKey>
bool appendUnique( TMap& inout_map, TKey&& in_key, typename TMap::mapped_type& inout_value ) {
    const std::size_t uSize = inout_map.size();
    inout_map.try_emplace( inout_map.end(), std::forward<TKey>( in_key ), std::move( inout_value ) );
    return inout_map.size() > uSize;
}

template <class TSet>
bool appendUnique( TSet& inout_set, typename TSet::value_type& inout_value ) {
    const std::size_t uSize = inout_set.size();
    inout_set.insert( inout_set.end(), std::move( inout_value ) );
    return inout_set.size() > uSize;
}

} // namespace Velquin::Pstn
