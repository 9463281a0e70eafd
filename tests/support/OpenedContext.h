#pragma once

#include "TestContext.h"

// A test context whose database is open, as after the program's first activation.
struct OpenedContext : TestContext {
    OpenedContext() { OpenDatabase(); }
};
