#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Velquin {

/// Container that keeps its pairs in the order of their insertion and finds them by key in constant time.
template <class K, class V>
class HashMapVector {
public:
    using value_type = std::pair<K, V>;
    using const_iterator = typename std::vector<value_type>::const_iterator;

    /// Appends the pair. If the key is already there, it changes nothing and yields false.
    bool insert( K in_key, V in_value ) {
        if ( find( in_key ) != end() )
            return false;
        const std::size_t uHash = std::hash<K>()( in_key );
        m_vecPairs.emplace_back( std::move( in_key ), std::move( in_value ) );
        try {
            m_positions.emplace( uHash, m_vecPairs.size() - 1 );
        } catch ( ... ) {
            m_vecPairs.pop_back();
            throw;
        }
        return true;
    }

    /// The pair of that key; `end()` when there is none.
    const_iterator find( const K& in_key ) const {
        const auto [itFirst, itEnd] = m_positions.equal_range( std::hash<K>()( in_key ) );
        const auto it = std::find_if(
            itFirst, itEnd, [&]( const auto& in_position ) { return m_vecPairs[in_position.second].first == in_key; } );
        return it == itEnd ? end() : begin() + static_cast<std::ptrdiff_t>( it->second );
    }

    const_iterator begin() const noexcept { return m_vecPairs.begin(); }
    const_iterator end() const noexcept { return m_vecPairs.end(); }
    std::size_t size() const noexcept { return m_vecPairs.size(); }
    bool empty() const noexcept { return m_vecPairs.empty(); }

private:
    std::vector<value_type> m_vecPairs;
    std::unordered_multimap<std::size_t, std::size_t> m_positions; ///< by the hash of the key
};

} // namespace Velquin
