#pragma once

#include <velquin/Object.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

class AcousticEchoCancellationConfigXmlSerializer;
class BackgroundNoiseAttenuationConfigXmlSerializer;
class BoardConfig;
class BoardConfigXmlSerializer;
class DtmfRemovalConfigXmlSerializer;
class EchoCancellationConfigXmlSerializer;
class InterfacePhysicalConfigXmlSerializer;
class LevelControlConfigXmlSerializer;
class ProviderConfigXmlSerializer;

/// Creates the serializer for a keyword of the format: an element's name or, for the voice-processing blocks, the value
/// of the attribute `type`. Keywords are compared exactly. The caller owns the result. The result is null, after an
/// ERROR line, when the keyword is unknown. The factory has no state: any thread may call its operations.
class VELQUIN_PSTN_CONFIG_EXPORT XmlSerializerObjectFactory : public virtual Object {
    PSTN_CONFIG_CLASS( XmlSerializerObjectFactory );

public:
    virtual ProviderConfigXmlSerializer* newProviderConfigXmlSerializer( const char* in_szKeyword ) const;
    /// Creates the serializer that writes a board of this dynamic type.
    virtual BoardConfigXmlSerializer* newBoardConfigXmlSerializer( BoardConfig& in_boardConfig ) const;
    virtual BoardConfigXmlSerializer* newBoardConfigXmlSerializer( const char* in_szKeyword ) const;
    virtual InterfacePhysicalConfigXmlSerializer*
    newInterfacePhysicalConfigXmlSerializer( const char* in_szKeyword ) const;
    virtual EchoCancellationConfigXmlSerializer*
    newEchoCancellationConfigXmlSerializer( const char* in_szKeyword ) const;
    virtual AcousticEchoCancellationConfigXmlSerializer*
    newAcousticEchoCancellationConfigXmlSerializer( const char* in_szKeyword ) const;
    virtual LevelControlConfigXmlSerializer* newLevelControlConfigXmlSerializer( const char* in_szKeyword ) const;
    virtual BackgroundNoiseAttenuationConfigXmlSerializer*
    newBackgroundNoiseAttenuationConfigXmlSerializer( const char* in_szKeyword ) const;
    virtual DtmfRemovalConfigXmlSerializer* newDtmfRemovalConfigXmlSerializer( const char* in_szKeyword ) const;
};

} // namespace Velquin::Pstn
