#pragma once

#include <velquin/Logger.h>
#include <velquin/MemAccount.h>

/// Gives a class of this library its memory account, named after the class, and its logger, named
/// "marovane.pstn.config." + the class. Put it first in the class, and PSTN_CONFIG_CLASS_IMPL into the source file.
#define PSTN_CONFIG_CLASS( ClassName )                                                                                 \
    VELQUIN_MEM_ACCOUNT( ClassName );                                                                                  \
    VELQUIN_LOGGER()

#define PSTN_CONFIG_CLASS_IMPL( ClassName )                                                                            \
    VELQUIN_MEM_ACCOUNT_IMPL( ClassName, #ClassName );                                                                 \
    VELQUIN_LOGGER_IMPL( ClassName, "marovane.pstn.config." #ClassName )

/// The same for a class within a class: its logger is below the logger of the outer class.
#define PSTN_CONFIG_NESTED_CLASS_IMPL( OuterName, ClassName )                                                          \
    VELQUIN_MEM_ACCOUNT_IMPL( OuterName::ClassName, #ClassName );                                                      \
    VELQUIN_LOGGER_IMPL( OuterName::ClassName, "marovane.pstn.config." #OuterName "." #ClassName )
