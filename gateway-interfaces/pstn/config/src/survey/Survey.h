#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <velquin/Finding.h>

#include "../PstnConfigExport.h"
#include "../loading/XmlConfig.h"

namespace Velquin::Pstn {

/// Looks for everything that is wrong with one configuration file.
///
///     Survey survey;
///     survey.run( "pstn.xml", "pstnConfig.rng" );
///     for ( const Finding& finding : survey.getFindings() )
///         ...
///
/// Where XmlConfig::load ends at the first fault, a survey goes on, also in a document that the schema refuses. It
/// passes over a faulty attribute or part, and leaves out an entry (a board, a group, a reference ...) that can't be
/// read without what it lacks. Then it cross-checks what it could read, and gives advice on it. Its log lines are those
/// of a load that went on. One thread at a time may use an object; threads may run surveys of their own.
class VELQUIN_PSTN_CONFIG_EXPORT Survey {
public:
    /// @throws std::bad_alloc
    Survey();
    Survey( const Survey& ) = delete;
    Survey& operator=( const Survey& ) = delete;
    ~Survey();

    /// Surveys a file. Call it once per object. Throws nothing.
    /// @param in_szConfigFile, in_szSchemaFile, in_bLogContent as for XmlConfig::load
    /// @return whether XmlConfig::load would load the file
    bool run( const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bLogContent = false );

    /// All findings, or the first ten thousand of a file that has more. Those without a line come first, then they
    /// stand by line and column; an echo stands behind the findings of its line.
    const std::vector<Finding>& getFindings() const noexcept;

    /// What could be read. Meant to be looked at: where there are findings, parts are missing.
    const XmlConfig& getConfig() const noexcept;

    /// A line of the file in UTF-8, without its end; empty when there is no such line.
    /// @param in_ullLine from 1
    std::string_view getLine( unsigned long long in_ullLine ) const noexcept;

private:
    class Impl;

    std::unique_ptr<Impl> m_pImpl;
};

} // namespace Velquin::Pstn
