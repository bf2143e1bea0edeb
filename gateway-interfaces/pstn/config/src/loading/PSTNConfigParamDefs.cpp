#include "loading/PSTNConfigParamDefs.h"

#include <velquin/Finding.h>
#include <velquin/ParameterInfoDB.h>

#include "Singleton.h"
#include "loading/XmlConfig.h"

namespace Velquin::Pstn {

const PSTNConfigParamDefs& PSTNConfigParamDefs::getInstance() {
    return Singleton<PSTNConfigParamDefs>::getInstance();
}

} // namespace Velquin::Pstn

namespace Velquin::PSTNConfig {

bool addParametersToDB() try {
    ParameterInfoDB& db = ParameterInfoDB::getNonConstInstance();
    for ( const auto& [szName, szDescription] : Pstn::PSTNConfigParamDefs::getInstance().getDefinitions() )
        db.addParameter( szName, ParameterInfoDB::KIND_STRING, false, false, false, szDescription );
    return true;
}
VELQUIN_CATCH_AND_RETURN( Pstn::XmlConfig::getLogger(), false )

} // namespace Velquin::PSTNConfig
