#pragma once

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "support/linux/failing_calls.h"

/// A test of what happens when calls of the system fail. Its program needs the library before the system's own.
class WithFailingCalls : public testing::Test {
  protected:
    WithFailingCalls() {
        auto *get = reinterpret_cast<FailingCallsGetter>(dlsym(RTLD_DEFAULT, failing_calls_name));
        if (get == nullptr) {
            ADD_FAILURE() << "LD_PRELOAD does not name the library of failing calls";
            std::exit(1);
        }
        calls_ = get();
        *calls_ = {};
    }
    ~WithFailingCalls() override { *calls_ = {}; }

    FailingCalls *calls_ = nullptr;
};
