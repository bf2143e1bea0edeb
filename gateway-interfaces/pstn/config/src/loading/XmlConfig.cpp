#include "loading/XmlConfig.h"

#include <string>
#include <utility>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>
#include <velquin/TraceScope.h>
#include <velquin/UniqueObjPtr.h>
#include <velquin/XML.h>

#include "callcontrol/CallControlConfigXmlSerializer.h"
#include "document/LibXml2Errors.h"
#include "document/ValidDocument.h"
#include "hardware/BoardConfigXmlSerializer.h"
#include "hardware/ProviderConfigXmlSerializer.h"
#include "loading/ContentLog.h"
#include "loading/CrossChecks.h"
#include "loading/ModelLocator.h"
#include "loading/PSTNConfigParamDefs.h"
#include "physical/InterfacePhysicalConfigXmlSerializer.h"
#include "reading/ElementEntries.h"
#include "reading/ElementWriter.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( XmlConfig );
VELQUIN_MEM_ACCOUNT_IMPL( ReferenceCount, "ReferenceCount" );

namespace {

constexpr const char* CONTAINS_ERRORS = " contains one ore more errors. ";

/// The file that is being loaded: the place of findings that have no nearer place.
class FilePlace : private FindingPlace {
public:
    explicit FilePlace( const char* in_szFile ) noexcept : m_szFile( in_szFile ) {}

private:
    void locate( Finding& inout_finding ) const override {
        if ( inout_finding.strFile.empty() )
            inout_finding.strFile = m_szFile;
    }

    const char* m_szFile;
};

} // namespace

/// The steps of a load. The copies of an XmlConfig share this object; it works for the copy that is loading.
class VELQUIN_PSTN_CONFIG_HIDDEN XmlConfig::Impl {
    VELQUIN_MEM_ACCOUNT( Impl );

public:
    bool load( XmlConfig& in_owner, const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bLogContent );
    const XmlSerializerObjectFactory& getFactory() const noexcept { return *m_pFactory; }

private:
    enum class Entry { ATTACHED, REFUSED, CONTAINS_ERRORS };
    using Step = bool ( Impl::* )( const xmlNode* in_pRootNode );

    static const Logger& getLogger() { return XmlConfig::getLogger(); }

    template <class ReadEntry>
    static bool loadSection( const xmlNode* in_pRootNode, const char* in_szSection, const char* in_szSubject,
                             ReadEntry in_readEntry );
    bool loadProvidersConfig( const xmlNode* in_pRootNode );
    bool loadBoardsConfig( const xmlNode* in_pRootNode );
    bool loadInterfacePhysicalsConfig( const xmlNode* in_pRootNode );
    bool loadCallControlConfig( const xmlNode* in_pRootNode );
    bool crossCheck( const xmlNode* in_pRootNode );

    XmlConfig* m_pOwner = nullptr; // the copy that is loading
    UniqueObjPtr<XmlSerializerObjectFactory> m_pFactory{ new XmlSerializerObjectFactory() };
};

VELQUIN_MEM_ACCOUNT_IMPL( XmlConfig::Impl, "Impl" );

bool XmlConfig::Impl::load( XmlConfig& in_owner, const char* in_szConfigFile, const char* in_szSchemaFile,
                            bool in_bLogContent ) {
    const XML::LibraryScope library;
    const FilePlace place( in_szConfigFile );
    const LibXml2ErrorRoute errorRoute( getLogger(), in_szConfigFile );
    // A watch of findings may load another file, with a copy of this configuration.
    const auto restoreOwner = [this, pOuter = m_pOwner]( XmlConfig* ) { m_pOwner = pOuter; };
    const std::unique_ptr<XmlConfig, decltype( restoreOwner )> pOwner( m_pOwner = &in_owner, restoreOwner );

    if ( in_bLogContent && !logContent( in_szConfigFile, getLogger() ) )
        return false;
    const XmlDocumentPtr pDocument = loadAndValidateXmlDocument( in_szConfigFile, in_szSchemaFile, getLogger() );
    if ( !pDocument )
        return false;
    const xmlNode* const pRootNode = pDocument->getRoot();
    if ( !VELQUIN_ASSERT( pRootNode ) )
        return false;
    EntryListener* const pListener = EntryListener::getCurrent();
    if ( pListener )
        pListener->beginDocument( pRootNode );
    for ( const Step step : { &Impl::loadProvidersConfig, &Impl::loadBoardsConfig, &Impl::loadInterfacePhysicalsConfig,
                              &Impl::loadCallControlConfig, &Impl::crossCheck } ) {
        if ( ( this->*step )( pRootNode ) )
            continue;
        if ( !pListener )
            return false;
        pListener->refuseFile();
    }
    if ( pListener )
        pListener->endDocument();
    return !pListener || !pListener->isFileRefused();
}

/// Reads the entries of one section, in document order. An absent or empty section is valid.
/// @param in_readEntry reads one entry and attaches it to the model
template <class ReadEntry>
bool XmlConfig::Impl::loadSection( const xmlNode* in_pRootNode, const char* in_szSection, const char* in_szSubject,
                                   ReadEntry in_readEntry ) {
    const xmlNode* const pSection = XML::findFirstElement( in_pRootNode, in_szSection );
    if ( !pSection )
        return true;
    return readEntries( ChildElements( pSection ), [&]( xmlNode* in_pEntry ) {
        const ReaderWording wording{};
        const AttributeReader reader( in_pEntry, getLogger(), wording );
        const Entry eEntry = in_readEntry( in_pEntry, reader.getName() );
        if ( eEntry == Entry::CONTAINS_ERRORS )
            reader.reportDeclared( in_szSubject + std::string( reader.getName() ), CONTAINS_ERRORS );
        return eEntry == Entry::ATTACHED;
    } );
}

bool XmlConfig::Impl::loadProvidersConfig( const xmlNode* in_pRootNode ) {
    VELQUIN_TRACE_SCOPE( getLogger(), "XmlConfig::Impl::loadProvidersConfig" );
    const auto readEntry = [this]( xmlNode* in_pEntry, const char* in_szName ) {
        const TSHandle<ProviderConfigXmlSerializer> pProviderConfigXmlSerializer(
            m_pFactory->newProviderConfigXmlSerializer( in_szName ) );
        if ( !VELQUIN_ASSERT( !pProviderConfigXmlSerializer.isNull() ) )
            return Entry::REFUSED;
        ProviderConfig* const pProviderConfig = pProviderConfigXmlSerializer->read( in_pEntry, *m_pOwner );
        if ( !pProviderConfig )
            return Entry::CONTAINS_ERRORS;
        return m_pOwner->addProviderConfig( pProviderConfig ) ? Entry::ATTACHED : Entry::REFUSED;
    };
    return loadSection( in_pRootNode, "providers", "Configuration of the provider ", readEntry );
}

bool XmlConfig::Impl::loadBoardsConfig( const xmlNode* in_pRootNode ) {
    VELQUIN_TRACE_SCOPE( getLogger(), "XmlConfig::Impl::loadBoardsConfig" );
    const auto readEntry = [this]( xmlNode* in_pEntry, const char* in_szName ) {
        const TSHandle<BoardConfigXmlSerializer> pBoardConfigXmlSerializer(
            m_pFactory->newBoardConfigXmlSerializer( in_szName ) );
        if ( !VELQUIN_ASSERT( !pBoardConfigXmlSerializer.isNull() ) )
            return Entry::REFUSED;
        BoardConfig* const pBoardConfig = pBoardConfigXmlSerializer->read( in_pEntry, *m_pOwner );
        if ( !pBoardConfig )
            return Entry::CONTAINS_ERRORS;
        return m_pOwner->addBoardConfig( pBoardConfig ) ? Entry::ATTACHED : Entry::REFUSED;
    };
    return loadSection( in_pRootNode, "boards", "Configuration of the board ", readEntry );
}

bool XmlConfig::Impl::loadInterfacePhysicalsConfig( const xmlNode* in_pRootNode ) {
    VELQUIN_TRACE_SCOPE( getLogger(), "XmlConfig::Impl::loadInterfacePhysicalsConfig" );
    const auto readEntry = [this]( xmlNode* in_pEntry, const char* in_szName ) {
        const TSHandle<InterfacePhysicalConfigXmlSerializer> pInterfacePhysicalConfigXmlSerializer(
            m_pFactory->newInterfacePhysicalConfigXmlSerializer( in_szName ) );
        if ( !VELQUIN_ASSERT( !pInterfacePhysicalConfigXmlSerializer.isNull() ) )
            return Entry::REFUSED;
        // The interfaces hold the configuration.
        return pInterfacePhysicalConfigXmlSerializer->read( in_pEntry, *m_pOwner ).isNull() ? Entry::CONTAINS_ERRORS
                                                                                            : Entry::ATTACHED;
    };
    return loadSection( in_pRootNode, "physicalInterfaceConfigs", "Configuration of the physical configuration ",
                        readEntry );
}

bool XmlConfig::Impl::loadCallControlConfig( const xmlNode* in_pRootNode ) {
    VELQUIN_TRACE_SCOPE( getLogger(), "XmlConfig::Impl::loadCallControlConfig" );
    xmlNode* const pCallControl = XML::findFirstElement( in_pRootNode, "callControl" );
    if ( !pCallControl ) {
        const ElementPlace place( in_pRootNode );
        VELQUIN_REPORT( getLogger(),
                        ( Fault{ Rules::MISSING_ELEMENT, "callControl", {}, {}, Finding::Kind::MISSING_ELEMENT } ),
                        "Can't load call control parameters. Make sure to have a \"callControl\" "
                        "element your   configuration file." );
        return false;
    }
    const ReaderWording wording{};
    const ElementReader reader( pCallControl, getLogger(), wording );
    CallControlConfigXmlSerializer callControlXmlSerializer;
    TSHandle<CallControlConfig> hCallControlConfig = callControlXmlSerializer.read( pCallControl, *m_pOwner );
    if ( hCallControlConfig.isNull() ) {
        reader.reportDeclared( "Call Control configuration", CONTAINS_ERRORS );
        return false;
    }
    if ( !m_pOwner->setCallControlConfig( hCallControlConfig ) ) {
        reader.reportDeclared( "Could not set Call Control configuration", CONTAINS_ERRORS );
        return false;
    }
    return true;
}

bool XmlConfig::Impl::crossCheck( const xmlNode* in_pRootNode ) {
    ModelLocator locator( in_pRootNode );
    CrossCheckSubject subject( *m_pOwner );
    if ( !subject.gather() )
        return false;
    bool bSound = true;
    for ( const CrossCheck check : getCrossChecks() ) {
        CrossCheckFindings findings;
        check( subject, findings );
        for ( CrossCheckFinding& finding : findings ) {
            const auto [pElement, strPath] = locator.find( finding.bAnalog, finding.uBoardId, finding.uInterfaceId );
            const ElementPlace place( pElement ? pElement : in_pRootNode, strPath );
            reportFinding( getLogger(), std::move( finding.fault ), std::move( finding.strText ), __FILE__, __LINE__ );
        }
        bSound = bSound && findings.empty();
    }
    return bSound;
}

XmlConfig::XmlConfig() : m_pImpl( new Impl() ) {}

XmlConfig::XmlConfig( const XmlConfig& ) = default;
XmlConfig& XmlConfig::operator=( const XmlConfig& ) = default;
XmlConfig::~XmlConfig() = default;

bool XmlConfig::load( const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bLogContent ) try {
    if ( !VELQUIN_ASSERT( in_szConfigFile != nullptr ) || !VELQUIN_ASSERT( in_szSchemaFile != nullptr ) )
        return false;
    return m_pImpl->load( *this, in_szConfigFile, in_szSchemaFile, in_bLogContent );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool XmlConfig::load( const ROConfiguration& in_configuration, bool in_bLogContent ) try {
    VELQUIN_TRACE_SCOPE( getLogger(), "XmlConfig::load" );
    const PSTNConfigParamDefs& paramDefs = PSTNConfigParamDefs::getInstance();
    const auto getParameter = [&in_configuration]( const char* in_szName, std::string& out_strValue ) {
        if ( in_configuration.getString( in_szName, out_strValue ) )
            return true;
        VELQUIN_REPORT( getLogger(), ( Fault{ Rules::MISSING_PARAMETER } ),
                        "Can't find global configuration parameter: " << in_szName << "." );
        return false;
    };
    std::string strConfigFile;
    std::string strSchemaFile;
    return getParameter( paramDefs.getConfigFile().szName, strConfigFile ) &&
           getParameter( paramDefs.getSchemaFile().szName, strSchemaFile ) &&
           load( strConfigFile.c_str(), strSchemaFile.c_str(), in_bLogContent );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

const XmlSerializerObjectFactory& XmlConfig::getXmlSerializerObjectFactory() const noexcept {
    return m_pImpl->getFactory();
}

bool XmlConfig::writeXML( _xmlDoc* in_pDocument ) const try {
    VELQUIN_TRACE_SCOPE( getLogger(), "XmlConfig::writeXML" );
    const XML::LibraryScope library;
    xmlNode* const pRoot = setRootElement( in_pDocument, "pstnConfig" );
    if ( !pRoot ) {
        VELQUIN_REPORT_ERROR( getLogger(), "Can not create root element." );
        return false;
    }
    xmlNode* const pBoards = addAttribute( pRoot, "version", "2.3" ) ? addChildElement( pRoot, "boards" ) : nullptr;
    if ( !pBoards ) {
        VELQUIN_REPORT_ERROR( getLogger(), "Can not add \"boards\" XML element." );
        return false;
    }
    const auto writeBoards = [this, pBoards]( const auto& in_mapBoards, const char* in_szFailure ) {
        for ( const auto& [uBoardId, hBoardCfg] : in_mapBoards ) {
            if ( !VELQUIN_ASSERT( !hBoardCfg.isNull() ) )
                return false;
            const TSHandle<BoardConfigXmlSerializer> hXmlSerializer(
                getXmlSerializerObjectFactory().newBoardConfigXmlSerializer( *hBoardCfg ) );
            if ( hXmlSerializer.isNull() || !hXmlSerializer->write( pBoards, *hBoardCfg ) ) {
                VELQUIN_REPORT_ERROR( getLogger(), in_szFailure );
                return false;
            }
        }
        return true;
    };
    return writeBoards( getDigitalBoardsConfig(), "Can not add digital boards elements." ) &&
           writeBoards( getAnalogBoardsConfig(), "Can not add analog boards elements." );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn
