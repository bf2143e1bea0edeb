#pragma once

#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Velquin {

/// Container that keeps its pairs in the order in which they were inserted and finds them by key in constant time.
template <class K, class V>
class HashMapVector {
public:
    using value_type = std::pair<K, V>;
    using const_iterator = typename std::vector<value_type>::const_iterator;

    /// Appends the pair. When the key is already there, nothing changes and the result is false.
    bool insert( const K& in_key, const V& in_value ) {
        if ( m_index.contains( in_key ) )
            return false;
        m_vecPairs.emplace_back( in_key, in_value );
        try {
            m_index.emplace( in_key, m_vecPairs.size() - 1 );
        } catch ( ... ) {
            m_vecPairs.pop_back();
            throw;
        }
        return true;
    }

    /// The pair of that key, `end()` when there is none.
    const_iterator find( const K& in_key ) const {
        const auto it = m_index.find( in_key );
        return it == m_index.end() ? end() : begin() + static_cast<std::ptrdiff_t>( it->second );
    }

    const_iterator begin() const noexcept { return m_vecPairs.begin(); }
    const_iterator end() const noexcept { return m_vecPairs.end(); }
    std::size_t size() const noexcept { return m_vecPairs.size(); }
    bool empty() const noexcept { return m_vecPairs.empty(); }

private:
    std::vector<value_type> m_vecPairs;
    std::unordered_map<K, std::size_t> m_index;
};

} // namespace Velquin
