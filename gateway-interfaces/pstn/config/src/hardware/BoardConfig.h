#pragma once

#include <string>

#include <velquin/Fallible.h>
#include <velquin/Object.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

/// One telephony card of the gateway. Base of all boards.
class VELQUIN_PSTN_CONFIG_EXPORT BoardConfig : public virtual Object {
    PSTN_CONFIG_CLASS( BoardConfig );

public:
    /// The board's number, unique among the boards of its kind (analog, digital); 0 until set.
    unsigned int getId() const noexcept { return m_uId; }
    void setId( unsigned int in_uId ) noexcept { m_uId = in_uId; }

    const char* getDisplayName() const noexcept { return m_strDisplayName.c_str(); }
    /// Takes letters, digits, '-', '_' and blanks; may be empty. Refuses anything else, and keeps the old name.
    bool setDisplayName( const char* in_szDisplayName );

    /// The card's model, any text.
    const char* getModel() const noexcept { return m_strModel.c_str(); }
    bool setModel( const char* in_szModel );

    /// Where the card sits on the PCI bus; unset when the configuration doesn't say. Not checked against the bus.
    const Fallible<unsigned long long>& getPCISlot() const noexcept { return m_ullPCISlot; }
    void setPCISlot( unsigned long long in_ullSlot ) { m_ullPCISlot.set( in_ullSlot ); }
    const Fallible<unsigned long long>& getPCIBus() const noexcept { return m_ullPCIBus; }
    void setPCIBus( unsigned long long in_ullBus ) { m_ullPCIBus.set( in_ullBus ); }

private:
    unsigned int m_uId = 0;
    std::string m_strDisplayName;
    std::string m_strModel;
    Fallible<unsigned long long> m_ullPCISlot;
    Fallible<unsigned long long> m_ullPCIBus;
};

} // namespace Velquin::Pstn
