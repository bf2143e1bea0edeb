#pragma once

#include <string>

#include <velquin/LimitedObjPtr.h>
#include <velquin/Object.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

class BoardConfig;

/// One line of a board. Base of all interfaces.
class VELQUIN_PSTN_CONFIG_EXPORT InterfaceConfig : public virtual Object {
    PSTN_CONFIG_CLASS( InterfaceConfig );

public:
    /// The interface's number within its board; 0 until set.
    unsigned int getId() const noexcept { return m_uId; }
    void setId( unsigned int in_uId ) noexcept { m_uId = in_uId; }

    const char* getDisplayName() const noexcept { return m_strDisplayName.c_str(); }
    /// Takes letters, digits, '-', '_' and blanks; may be empty. Refuses anything else, and keeps the old name.
    bool setDisplayName( const char* in_szDisplayName );

    /// The board, which owns the interface.
    LimitedObjPtr<const BoardConfig> getBoardConfig() const noexcept { return m_pBoardConfig; }
    /// Refuses null, with an assertion.
    bool setBoardConfig( LimitedObjPtr<const BoardConfig> in_pBoardConfig );

    /// The text that names the interface across the model: "b1di2" in the short form, "b1(Span board)di2(Trunk-A)" in
    /// the long form ("ai" for analog interfaces). The first call composes the text from the numbers and names at that
    /// moment, and keeps it. It must come before threads share the interface. The reader of interfaces calls once for
    /// each form, so threads that share a loaded model never compose. Empty, after an assertion, without a board.
    virtual const char* getUniqueId( bool in_bShort ) const = 0;

protected:
    /// @param in_szKind "di" or "ai"
    const char* composeUniqueId( bool in_bShort, const char* in_szKind ) const;

private:
    unsigned int m_uId = 0;
    std::string m_strDisplayName;
    mutable std::string m_strLongUniqueId;
    mutable std::string m_strShortUniqueId;
    LimitedObjPtr<const BoardConfig> m_pBoardConfig;
};

} // namespace Velquin::Pstn
