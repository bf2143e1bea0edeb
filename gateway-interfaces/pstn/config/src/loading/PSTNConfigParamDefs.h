#pragma once

#include <array>

#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

template <class T>
class Singleton;

/// The global parameters that this library reads and declares.
class VELQUIN_PSTN_CONFIG_EXPORT PSTNConfigParamDefs {
public:
    struct Definition {
        const char* szName;
        const char* szDescription;
    };

    static constexpr const char* SINGLETON_MUTEX = "ParamDefs::Singleton";

    /// @throws std::bad_alloc at the first use, when memory ends
    static const PSTNConfigParamDefs& getInstance();

    /// Path of the configuration file.
    const Definition& getConfigFile() const noexcept { return m_aDefinitions[0]; }
    /// Path of the RelaxNG schema.
    const Definition& getSchemaFile() const noexcept { return m_aDefinitions[1]; }
    /// All parameters, in the order in which they are declared.
    const std::array<Definition, 2>& getDefinitions() const noexcept { return m_aDefinitions; }

private:
    friend class Singleton<PSTNConfigParamDefs>;

    PSTNConfigParamDefs() = default;

    std::array<Definition, 2> m_aDefinitions{ {
        { "marovane.pstn.config.file", "Configuration file for PSTN modules of the Gateway." },
        { "marovane.pstn.config.schemaFile", "Schema file that validates the PSTN configuration of the Gateway." },
    } };
};

} // namespace Velquin::Pstn

namespace Velquin::PSTNConfig {

/// Declares the library's parameters in the gateway's parameter database. The gateway calls this once, before it loads
/// the configuration. A name that is already declared keeps its first declaration.
VELQUIN_PSTN_CONFIG_EXPORT bool addParametersToDB();

} // namespace Velquin::PSTNConfig
