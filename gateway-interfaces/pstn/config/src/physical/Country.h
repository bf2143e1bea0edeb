#pragma once

#include "../reading/KeywordTable.h"

// Countries and regions with different settings of analog lines, by their names in a configuration. TBR21 is the common
// European standard (ETSI TBR 21).
#define PSTN_CONFIG_COUNTRIES( X )                                                                                     \
    X( ARGENTINA )                                                                                                     \
    X( AUSTRALIA )                                                                                                     \
    X( AUSTRIA )                                                                                                       \
    X( BAHRAIN )                                                                                                       \
    X( BELGIUM )                                                                                                       \
    X( BRAZIL )                                                                                                        \
    X( BULGARIA )                                                                                                      \
    X( CANADA )                                                                                                        \
    X( CHILE )                                                                                                         \
    X( CHINA )                                                                                                         \
    X( COLOMBIA )                                                                                                      \
    X( CROATIA )                                                                                                       \
    X( CYPRUS )                                                                                                        \
    X( CZECH_REPUBLIC )                                                                                                \
    X( DENMARK )                                                                                                       \
    X( ECUADOR )                                                                                                       \
    X( EGYPT )                                                                                                         \
    X( EL_SALVADOR )                                                                                                   \
    X( FINLAND )                                                                                                       \
    X( FRANCE )                                                                                                        \
    X( GERMANY )                                                                                                       \
    X( GREECE )                                                                                                        \
    X( GUAM )                                                                                                          \
    X( HONG_KONG )                                                                                                     \
    X( HUNGARY )                                                                                                       \
    X( ICELAND )                                                                                                       \
    X( INDIA )                                                                                                         \
    X( INDONESIA )                                                                                                     \
    X( IRELAND )                                                                                                       \
    X( ISRAEL )                                                                                                        \
    X( ITALY )                                                                                                         \
    X( JAPAN )                                                                                                         \
    X( JORDAN )                                                                                                        \
    X( KAZAKHSTAN )                                                                                                    \
    X( KUWAIT )                                                                                                        \
    X( LATVIA )                                                                                                        \
    X( LEBANON )                                                                                                       \
    X( LUXEMBOURG )                                                                                                    \
    X( MACAO )                                                                                                         \
    X( MALAYSIA )                                                                                                      \
    X( MALTA )                                                                                                         \
    X( MEXICO )                                                                                                        \
    X( MOROCCO )                                                                                                       \
    X( NETHERLANDS )                                                                                                   \
    X( NEW_ZEALAND )                                                                                                   \
    X( NIGERIA )                                                                                                       \
    X( NORWAY )                                                                                                        \
    X( OMAN )                                                                                                          \
    X( PAKISTAN )                                                                                                      \
    X( PERU )                                                                                                          \
    X( PHILIPPINES )                                                                                                   \
    X( POLAND )                                                                                                        \
    X( PORTUGAL )                                                                                                      \
    X( ROMANIA )                                                                                                       \
    X( RUSSIA )                                                                                                        \
    X( SAUDI_ARABIA )                                                                                                  \
    X( SINGAPORE )                                                                                                     \
    X( SLOVAKIA )                                                                                                      \
    X( SLOVENIA )                                                                                                      \
    X( SOUTH_AFRICA )                                                                                                  \
    X( SOUTH_KOREA )                                                                                                   \
    X( SPAIN )                                                                                                         \
    X( SWEDEN )                                                                                                        \
    X( SWITZERLAND )                                                                                                   \
    X( SYRIA )                                                                                                         \
    X( TAIWAN )                                                                                                        \
    X( TBR21 )                                                                                                         \
    X( THAILAND )                                                                                                      \
    X( TURKEY )                                                                                                        \
    X( UNITED_ARAB_EMIRATES )                                                                                          \
    X( UNITED_KINGDOM )                                                                                                \
    X( UNITED_STATES )                                                                                                 \
    X( URUGUAY )                                                                                                       \
    X( VENEZUELA )                                                                                                     \
    X( YEMEN )

namespace Velquin::Pstn {

/// Country or region whose line settings an analog port follows.
class Country {
public:
    enum Type {
        INVALID = 0, ///< no country
#define PSTN_CONFIG_COUNTRY( name ) name,
        PSTN_CONFIG_COUNTRIES( PSTN_CONFIG_COUNTRY )
#undef PSTN_CONFIG_COUNTRY
    };
};

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto COUNTRY = keywordTable<Country::Type>( {
#define PSTN_CONFIG_COUNTRY( name ) { #name, Country::name },
    PSTN_CONFIG_COUNTRIES( PSTN_CONFIG_COUNTRY )
#undef PSTN_CONFIG_COUNTRY
} );

} // namespace Keywords

} // namespace Velquin::Pstn
