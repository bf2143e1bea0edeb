#include "physical/CountryMap.h"

#include "Singleton.h"

namespace Velquin::Pstn {

const CountryMap& CountryMap::getInstance() {
    return Singleton<CountryMap>::getInstance();
}

CountryMap::CountryMap() {
    for ( const auto& [strName, eType] : Keywords::COUNTRY.getEntries() )
        m_mapTypes.emplace( strName, eType );
}

Country::Type CountryMap::getType( const char* in_szName ) const noexcept {
    const auto it = m_mapTypes.find( in_szName ? in_szName : "" );
    return it == m_mapTypes.end() ? Country::INVALID : it->second;
}

const char* CountryMap::getName( Country::Type in_eType ) const noexcept {
    const std::string_view strName = Keywords::COUNTRY.keywordOf( in_eType );
    return strName.empty() ? "" : strName.data();
}

} // namespace Velquin::Pstn
