#pragma once

#include <velquin/ROConfiguration.h>
#include <velquin/XMLDocOutputStreamable.h>

#include "../hardware/Config.h"
#include "CountedPtr.h"
#include "XmlSerializerObjectFactory.h"

namespace Velquin::Pstn {

/// A configuration that fills itself from an XML file, which a RelaxNG schema validates, and writes its boards back.
///
///     XmlConfig config;
///     if ( !config.load( "pstn.xml", "pstnConfig.rng", false ) )
///         ...  // the log names file and line of what is wrong; discard the object
///
/// `std::ostream << config` writes the boards as an XML document.
///
/// One thread at a time uses an XmlConfig and its copies: they share a part whose count is not thread-safe. The model
/// itself may be read by many threads once it is loaded. Threads may load configurations of their own at the same time.
class VELQUIN_PSTN_CONFIG_EXPORT XmlConfig : public Config, public XMLSTLDocOutputStreamableImpl {
    PSTN_CONFIG_CLASS( XmlConfig );

public:
    /// @throws std::bad_alloc
    XmlConfig();
    /// Copies the model (its objects are shared) and shares the rest.
    XmlConfig( const XmlConfig& in_other );
    XmlConfig& operator=( const XmlConfig& in_other );
    ~XmlConfig() override;

    /// Loads, validates and cross-checks a configuration file. To be called once per object: what a failed load has
    /// attached before the fault stays. Every fault is an ERROR line on the log, and a finding for those who watch
    /// (FindingWatch); nothing is thrown. A load that gives true has such lines only where the model goes without what
    /// couldn't be read: the disconnect supervision of FXO ports.
    /// @param in_szConfigFile path of a regular file
    /// @param in_szSchemaFile path of the RelaxNG schema, in one file
    /// @param in_bLogContent whether the file's content is logged at INFO, with line numbers
    bool load( const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bLogContent );
    /// The same with the paths that the parameters "marovane.pstn.config.file" and "marovane.pstn.config.schemaFile"
    /// hold.
    bool load( const ROConfiguration& in_configuration, bool in_bLogContent );

    /// The factory of the serializers; lives as long as this object or a copy of it.
    const XmlSerializerObjectFactory& getXmlSerializerObjectFactory() const noexcept;

protected:
    /// Fills the document with the root and the boards: digital ones first, each kind ascending by identifier.
    bool writeXML( _xmlDoc* in_pDocument ) const override;

private:
    class Impl;

    CountedPtr<Impl> m_pImpl;
};

} // namespace Velquin::Pstn
