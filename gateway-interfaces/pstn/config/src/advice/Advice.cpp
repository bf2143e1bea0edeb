#include "advice/Advice.h"

#include "advice/AdviceTable.h"

namespace Velquin::Pstn {

std::vector<Finding> advise( const Config& in_config, const xmlNode* in_pRoot,
                             std::span<const xmlNode* const> in_faulty ) {
    AdviceReport report( in_pRoot, in_faulty );
    const AdviceSubject subject( in_config, report );
    for ( const AdviceRule& entry : ADVICE_TABLE ) {
        report.setRule( entry.rule );
        entry.advise( subject, report );
    }
    return report.release();
}

} // namespace Velquin::Pstn
