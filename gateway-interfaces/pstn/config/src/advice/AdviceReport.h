#pragma once

#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <velquin/Finding.h>

#include "advice/AdviceSubject.h"
#include "loading/ModelLocator.h"
#include "survey/Rules.h"

namespace Velquin::Pstn {

/// An element or an attribute of the document, by what it stands for.
struct AdvicePlace {
    std::vector<ModelLocator::Key> vecKeys; ///< the first one that stands in the document counts
    std::string strBelow = {};              ///< see ModelLocator::find
    const char* szAttribute = "";

    AdvicePlace below( const char* in_szBelow, const char* in_szAttribute = "" ) const {
        return { vecKeys, strBelow + ( strBelow.empty() ? "" : "/" ) + in_szBelow, in_szAttribute };
    }
    AdvicePlace attribute( const char* in_szAttribute ) const { return { vecKeys, strBelow, in_szAttribute }; }
};

/// Another place that belongs to an advice.
struct AdviceRelated {
    const char* szLabel; ///< "first here"
    AdvicePlace place;
};

/// What a rule says of one mistake. With an attribute that stands in the document, the reader sees `name="value":
/// hint`; otherwise the message, and then the hint.
struct Advice {
    AdvicePlace place;
    std::string strMessage; ///< used without attribute
    std::string strHint;    ///< the remedy
    std::vector<AdviceRelated> vecRelated = {};
    bool bNote = false; ///< whether this hurts less than the rule's severity says
};

/// Takes what the rules say, and finds the places for it.
class AdviceReport {
public:
    /// @param in_faulty elements of which the model lacks an attribute
    AdviceReport( const xmlNode* in_pRoot, std::span<const xmlNode* const> in_faulty )
        : m_locator( in_pRoot ), m_setFaulty( in_faulty.begin(), in_faulty.end() ) {}

    /// The rule that speaks from now on.
    void setRule( const Rule& in_rule ) noexcept { m_pRule = &in_rule; }
    /// Takes an advice. An element, or an attribute, breaks a rule only once: where it names many lines, the first one
    /// tells. What stands nowhere in the document, nobody can mend there: that is dropped, as is what stands in a
    /// faulty element or refers to one.
    void add( const Advice& in_advice );
    /// Whether the model lacks an attribute of what stands there.
    /// @param in_getPlace yields the place; it is asked only where a file has faults
    template <class GetPlace>
    bool isAtFault( GetPlace in_getPlace ) {
        return !m_setFaulty.empty() && isFaulty( find( in_getPlace() ).pElement );
    }
    /// The document, for rules that must know whether a part of it is missing from the model.
    ModelLocator& getDocument() noexcept { return m_locator; }

    std::vector<Finding> release() noexcept { return std::move( m_vecFindings ); }

private:
    ModelLocator::Place find( const AdvicePlace& in_place );
    bool isFaulty( const xmlNode* in_pElement ) const;

    ModelLocator m_locator;
    std::set<const xmlNode*> m_setFaulty;
    const Rule* m_pRule = nullptr;
    std::vector<Finding> m_vecFindings;
    std::set<std::tuple<const Rule*, const xmlNode*, std::string>> m_setBroken;
};

// Places, and words for what stands there

AdvicePlace placeOf( const AdviceSubject::Board& in_board );
AdvicePlace placeOf( const InterfaceConfig& in_interface );
AdvicePlace placeOf( const ChannelGroupConfig& in_group );
AdvicePlace placeOf( const AdviceSubject::Physical<DigitalInterfacePhysicalConfig>& in_physical );
AdvicePlace placeOf( const AdviceSubject::Physical<AnalogInterfacePhysicalConfig>& in_physical );
/// The group or the configuration itself.
AdvicePlace placeOf( const AdviceSubject::IsdnUse& in_use );
AdvicePlace placeOf( const AdviceSubject::AnalogUse& in_use );
/// Its reference to the interface.
AdvicePlace placeOf( const AdviceSubject::IsdnUse& in_use, const InterfaceConfig& in_interface );
AdvicePlace placeOf( const AdviceSubject::AnalogUse& in_use, const InterfaceConfig& in_interface );
AdvicePlace placeOf( const AdviceSubject::Range& in_range );

/// "span 2 of board 1", "port 3 of board 1"
std::string nameOf( const InterfaceConfig& in_interface );
/// "fasConfig 1", "nfasGroup 2"
std::string nameOf( const AdviceSubject::IsdnUse& in_use );

} // namespace Velquin::Pstn
