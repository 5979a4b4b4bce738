// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/OffscreenContext.h"

#include <gtest/gtest.h>

#include <QtGlobal>

/// Skips the test where the machine gives no OpenGL; fails it instead where GRISAL_REQUIRE_GL is set. For SetUp().
#define GRISAL_SKIP_WITHOUT_GL()                                                                                       \
    if (!grisal::graphics::OffscreenContext().isCurrent()) {                                                           \
        if (qEnvironmentVariableIsSet("GRISAL_REQUIRE_GL")) {                                                          \
            FAIL() << "no OpenGL on this machine, and GRISAL_REQUIRE_GL asks for it";                                  \
        }                                                                                                              \
        GTEST_SKIP() << "no OpenGL on this machine";                                                                   \
    }
