#pragma once

#include <velquin/Logger.h>
#include <velquin/MemAccount.h>

/// Gives a class of this library its memory account, named after the class, and its logger, named
/// "marovane.pstn.config." + the class. Stands first in the class, PSTN_CONFIG_CLASS_IMPL in its source file.
#define PSTN_CONFIG_CLASS( ClassName )                                                                                 \
    VELQUIN_MEM_ACCOUNT( ClassName );                                                                                  \
    VELQUIN_LOGGER()

#define PSTN_CONFIG_CLASS_IMPL( ClassName )                                                                            \
    VELQUIN_MEM_ACCOUNT_IMPL( ClassName, #ClassName );                                                                 \
    VELQUIN_LOGGER_IMPL( ClassName, "marovane.pstn.config." #ClassName )

/// The same for a class within another: its logger is below that of the class around it.
#define PSTN_CONFIG_NESTED_CLASS_IMPL( OuterName, ClassName )                                                          \
    VELQUIN_MEM_ACCOUNT_IMPL( OuterName::ClassName, #ClassName );                                                      \
    VELQUIN_LOGGER_IMPL( OuterName::ClassName, "marovane.pstn.config." #OuterName "." #ClassName )
