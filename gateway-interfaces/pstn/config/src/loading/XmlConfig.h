#pragma once

#include <velquin/ROConfiguration.h>
#include <velquin/XMLDocOutputStreamable.h>

#include "../hardware/Config.h"
#include "CountedPtr.h"
#include "XmlSerializerObjectFactory.h"

namespace Velquin::Pstn {

/// The configuration of the gateway. It loads itself from an XML file, validates the file against a RELAX NG schema,
/// and can write its boards back.
///
///     XmlConfig config;
///     if ( !config.load( "pstn.xml", "pstnConfig.rng", false ) )
///         ...  // the log names file and line of each fault; discard the object
///
/// `std::ostream << config` writes the boards as an XML document.
///
/// Only one thread at a time may use an XmlConfig and its copies: they share a part whose count is not thread-safe.
/// Once the model is loaded, many threads may read it. Threads may load configurations of their own at the same time.
class VELQUIN_PSTN_CONFIG_EXPORT XmlConfig : public Config, public XMLSTLDocOutputStreamableImpl {
    PSTN_CONFIG_CLASS( XmlConfig );

public:
    /// @throws std::bad_alloc
    XmlConfig();
    /// Copies the model (its objects are shared) and shares the rest.
    XmlConfig( const XmlConfig& in_other );
    XmlConfig& operator=( const XmlConfig& in_other );
    ~XmlConfig() override;

    /// Loads, validates and cross-checks a configuration file. Call it once per object: a failed load leaves behind
    /// what it attached before the fault. Every fault is an ERROR line in the log, and a finding for a FindingWatch.
    /// Throws nothing. A load that yields true logs an ERROR only when it leaves out a disconnect supervision of FXO
    /// ports that it can't read.
    /// @param in_szConfigFile path of a regular file
    /// @param in_szSchemaFile path of the RELAX NG schema, which must stand in one file
    /// @param in_bLogContent whether the file's content is logged at INFO, with line numbers
    bool load( const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bLogContent );
    /// The same with the paths from the parameters "marovane.pstn.config.file" and "marovane.pstn.config.schemaFile".
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
