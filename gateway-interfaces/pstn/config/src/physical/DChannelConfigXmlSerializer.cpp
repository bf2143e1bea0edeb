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

    unsigned int uNumber = 0;
    if ( !reader.requireNumber( "channelIndex", LEADING_DECIMAL, uNumber ) )
        return nullptr;
    pDChannelConfig->setDChannelIndex( uNumber );
    if ( !reader.requireNumber( "mtuSize", LEADING_DECIMAL, uNumber ) )
        return nullptr;
    pDChannelConfig->setMtuSize( uNumber );

    bool bRecord = pDChannelConfig->isPcapRecorderEnabled();
    if ( reader.findSchemaKeyword( "RecordToPcapFile", Keywords::YES_NO, bRecord ) == ReadResult::WRONG )
        return nullptr;
    pDChannelConfig->enablePcapRecorder( bRecord );

    AttributeText folder;
    const bool bFolder = reader.findText( "PcapFilesFolder", folder ) == ReadResult::READ;
    if ( !pDChannelConfig->setPcapFilesFolder( bFolder ? folder.c_str() : getDefaultPcapFilesFolder().c_str() ) )
        return nullptr;
    return pDChannelConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool DChannelConfigXmlSerializer::write( xmlNode* const, const DChannelConfig& ) {
    return reportNotImplemented( getLogger(), "DChannelConfigXmlSerializer::write" );
}

DChannelConfig* DChannelConfigXmlSerializer::newDChannelConfig() {
    return new ( std::nothrow ) DChannelConfig();
}

} // namespace Velquin::Pstn
