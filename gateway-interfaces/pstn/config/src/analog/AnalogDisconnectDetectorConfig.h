#pragma once

#include <string>
#include <utility>
#include <vector>

#include <velquin/Object.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

/// A sequence on an FXO line that means that the far end hung up.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogDisconnectDetectorConfig : public virtual Object {
    PSTN_CONFIG_CLASS( AnalogDisconnectDetectorConfig );

public:
    /// One item of a sequence: the text before the slash and the text after it, which is empty without a slash.
    using Sequencemenber = std::pair<std::string, std::string>;

    /// The detector's name, unique within one supervision; any text.
    const char* getName() const noexcept { return m_strName.c_str(); }
    /// Refuses null, with an assertion.
    bool setName( const char* in_szName );

    /// The items, in the order of the text.
    const std::vector<Sequencemenber>& getSequence() const noexcept { return m_vecSequence; }
    /// Replaces the sequence by that of a text: items with commas between them, each of them text with at most one
    /// slash; blanks count. Null (an assertion) and a text that is no sequence (an ERROR line) are refused and leave
    /// the sequence empty. An empty text is the empty sequence, but an empty item among others is refused.
    bool parseSequence( const char* in_szSequence );

private:
    std::string m_strName;
    std::vector<Sequencemenber> m_vecSequence;
};

} // namespace Velquin::Pstn
