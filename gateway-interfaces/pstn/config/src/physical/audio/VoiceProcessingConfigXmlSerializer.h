#pragma once

#include <new>
#include <string>
#include <type_traits>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>
#include <velquin/Object.h>
#include <velquin/UniqueObjPtr.h>

#include "../../PstnConfigExport.h"
#include "../../reading/XmlNodeFwd.h"

namespace Velquin::Pstn {

class XmlConfig;

/// The body of every `write` of the family: logs an ERROR that the operation is not implemented, and yields false.
VELQUIN_PSTN_CONFIG_EXPORT bool reportBlockNotWritten( const Logger& in_logger,
                                                       const char* in_szXmlSerializer ) noexcept;

/// Reads one voice-processing block of an `audio` element. The five blocks have this in common. `TSelf` is the block's
/// serializer, `TConfig` its model class.
template <class TSelf, class TConfig>
class VoiceProcessingConfigXmlSerializer : public virtual Object {
public:
    /// A new block, which the caller owns; null after an ERROR line. Reads no attribute: derived serializers do.
    virtual TConfig* read( xmlNode* const, XmlConfig& ) try {
        UniqueObjPtr<TConfig> pConfig( newConfig() );
        if ( pConfig.isNull() ) {
            const std::string strExpression = "!p" + std::string( TConfig::getMemAccountName() ) + ".isNull()";
            const Assertion assertion( false, strExpression.c_str(), TSelf::getMemAccountName(), __LINE__ );
        }
        return pConfig.release();
    }
    VELQUIN_CATCH_AND_RETURN( TSelf::getLogger(), nullptr )

    /// Not implemented: false, with an ERROR line.
    virtual bool write( xmlNode* const, const TConfig& ) {
        return reportBlockNotWritten( TSelf::getLogger(), TSelf::getMemAccountName() );
    }

    /// Creates the empty object of the concrete class, which the caller owns; null in this class.
    virtual TConfig* newConfig() { return nullptr; }
};

/// Reads a block that the board's hardware performs. `TSelf::readAttributes` reads its attributes.
template <class TSelf, class TGeneric, class THardwareConfig>
class HardwareVoiceProcessingConfigXmlSerializer : public TGeneric {
public:
    using Config = decltype( TGeneric().newConfig() );

    Config read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) override try {
        UniqueObjPtr pConfig( TGeneric::read( in_pElement, in_xmlConfig ) );
        auto pHardwareConfig = dynamicOwnerCast<THardwareConfig>( std::move( pConfig ) );
        const Assertion assertion( !pHardwareConfig.isNull(), "!pHardwareConfig.isNull()", TSelf::getMemAccountName(),
                                   __LINE__ );
        if ( !assertion || !TSelf::readAttributes( in_pElement, *pHardwareConfig ) )
            return nullptr;
        return pHardwareConfig.release();
    }
    VELQUIN_CATCH_AND_RETURN( TSelf::getLogger(), nullptr )

    bool write( xmlNode* const, std::add_lvalue_reference_t<const std::remove_pointer_t<Config>> ) override {
        return reportBlockNotWritten( TSelf::getLogger(), TSelf::getMemAccountName() );
    }

    Config newConfig() override { return new ( std::nothrow ) THardwareConfig(); }
};

} // namespace Velquin::Pstn
