#include "advice/Advice.h"

namespace Velquin::Pstn {

std::vector<Finding> advise( const Config&, const xmlNode* ) {
    return {};
}

} // namespace Velquin::Pstn
