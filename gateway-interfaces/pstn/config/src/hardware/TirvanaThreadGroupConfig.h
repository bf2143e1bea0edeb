#pragma once

#include <velquin/Object.h>
#include <velquin/Priority.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

/// How many threads serve one kind of channel, and at which priority.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaThreadGroupConfig : public virtual Object {
    PSTN_CONFIG_CLASS( TirvanaThreadGroupConfig );

public:
    unsigned int getThreadCount() const noexcept { return m_uThreadCount; }
    void setThreadCount( unsigned int in_uThreadCount ) noexcept { m_uThreadCount = in_uThreadCount; }

    const Priority& getThreadsPriority() const noexcept { return m_threadsPriority; }
    void setThreadsPriority( const Priority& in_priority ) noexcept { m_threadsPriority = in_priority; }

private:
    unsigned int m_uThreadCount = 0;
    Priority m_threadsPriority = Priority::NORMAL;
};

} // namespace Velquin::Pstn
