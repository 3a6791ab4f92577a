// The atmosphere tables delivered beside the binaries, read once for the whole
// test program.
#pragma once

#include <gtest/gtest.h>

#include "core/attitude/atmosphere.h"

namespace kestrel {

inline const TablesAtmosphere& tables() {
    static const TablesAtmosphere t = [] {
        TablesAtmosphere r;
        EXPECT_FALSE(charge_tables_atmosphere(KESTREL_BIN_DIR, r));
        return r;
    }();
    return t;
}

}  // namespace kestrel
