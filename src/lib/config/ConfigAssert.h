#pragma once

#include "lib/text/Assertion.h"

/// The assertion of the configuration store. Its messages name the source as they always have.
#define CONFIG_ASSERT(expression)                                                                            \
    ((expression) ? static_cast<void>(0)                                                                     \
                  : LibAssertFail(#expression, "z:\\src\\lib\\free_LibConfig", __LINE__))
