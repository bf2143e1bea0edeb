#include "physical/DChannelConfigXmlSerializer.h"

#include <new>

#include <velquin/GlobalConfig.h>
#include <velquin/UniqueObjPtr.h>

#include "reading/ElementReader.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DChannelConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for DChannel  ", "] for DChannel  " };

std::string getDefaultPcapFilesFolder() {
    std::string strFolder;
    GlobalConfig::getInstance().getString( "marovane.Installation.Directory", strFolder );
    return strFolder + "/logs/DChannelPcapFiles/";
}

} // namespace

DChannelConfig* DChannelConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& ) try {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    UniqueObjPtr<DChannelConfig> pDChannelConfig( newDChannelConfig() );
    if ( !VELQUIN_ASSERT( !pDChannelConfig.isNull() ) )
        return nullptr;

    const bool bRead =
        reader.require( "channelIndex", LEADING_DECIMAL, *pDChannelConfig, &DChannelConfig::setDChannelIndex ) &&
        reader.require( "mtuSize", LEADING_DECIMAL, *pDChannelConfig, &DChannelConfig::setMtuSize ) &&
        reader.accept( "RecordToPcapFile", bySchema( Keywords::YES_NO ), *pDChannelConfig,
                       &DChannelConfig::enablePcapRecorder ) &&
        ( reader.has( "PcapFilesFolder" )
              ? reader.require( "PcapFilesFolder", ANY_TEXT, *pDChannelConfig, &DChannelConfig::setPcapFilesFolder )
              : pDChannelConfig->setPcapFilesFolder( getDefaultPcapFilesFolder().c_str() ) );
    return bRead ? pDChannelConfig.release() : nullptr;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool DChannelConfigXmlSerializer::write( xmlNode* const, const DChannelConfig& ) {
    return reportNotImplemented( getLogger(), "DChannelConfigXmlSerializer::write" );
}

DChannelConfig* DChannelConfigXmlSerializer::newDChannelConfig() {
    return new ( std::nothrow ) DChannelConfig();
}

} // namespace Velquin::Pstn
