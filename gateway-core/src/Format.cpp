#include <velquin/Media/Format.h>

namespace Velquin::Media {

void Format::initFrom( Type in_eType ) noexcept {
    m_eType = in_eType;
}

} // namespace Velquin::Media
