#pragma once

#include <string_view>
#include <unordered_map>

#include "../PstnConfigExport.h"
#include "Country.h"

namespace Velquin::Pstn {

template <class T>
class Singleton;

/// Names of the countries. All operations may be called from any thread.
class VELQUIN_PSTN_CONFIG_EXPORT CountryMap {
public:
    static constexpr const char* SINGLETON_MUTEX = "CountryMap::Singleton";

    /// @throws std::bad_alloc at the first use, when memory ends
    static const CountryMap& getInstance();

    /// The country of that English name in upper case (exact comparison); Country::INVALID for an unknown name.
    Country::Type getType( const char* in_szName ) const noexcept;
    /// The country's name; empty for Country::INVALID.
    const char* getName( Country::Type in_eType ) const noexcept;

private:
    friend class Singleton<CountryMap>;

    CountryMap();

    std::unordered_map<std::string_view, Country::Type> m_mapTypes;
};

} // namespace Velquin::Pstn
