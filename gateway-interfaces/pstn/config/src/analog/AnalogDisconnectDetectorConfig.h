#pragma once

#include <string>
#include <utility>
#include <vector>

#include <velquin/Object.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

/// A sequence of events on an FXO line. It means that the far end hung up.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogDisconnectDetectorConfig : public virtual Object {
    PSTN_CONFIG_CLASS( AnalogDisconnectDetectorConfig );

public:
    /// One item of a sequence: the text before the slash and the text after it. Without a slash, the second is empty.
    using Sequencemenber = std::pair<std::string, std::string>;

    /// The detector's name, unique within one supervision; any text.
    const char* getName() const noexcept { return m_strName.c_str(); }
    /// Refuses null, with an assertion.
    bool setName( const char* in_szName );

    /// The items, in the order of the text.
    const std::vector<Sequencemenber>& getSequence() const noexcept { return m_vecSequence; }
    /// Replaces the sequence. The text has items with commas between them; each item has at most one slash. Blanks
    /// count. An empty text is the empty sequence, but an empty item among others is no item. Refuses null, with an
    /// assertion, and a text that is no sequence, with an ERROR line; the sequence is then empty.
    bool parseSequence( const char* in_szSequence );

private:
    std::string m_strName;
    std::vector<Sequencemenber> m_vecSequence;
};

} // namespace Velquin::Pstn
