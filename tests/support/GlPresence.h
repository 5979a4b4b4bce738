// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/OffscreenContext.h"

#include <gtest/gtest.h>

#include <QtGlobal>

/// Skips the test if the machine has no OpenGL; fails it instead if GRISAL_REQUIRE_GL is set. For SetUp().
#define GRISAL_SKIP_WITHOUT_GL()                                                                                       \
    if (!grisal::graphics::OffscreenContext().isCurrent()) {                                                           \
        if (qEnvironmentVariableIsSet("GRISAL_REQUIRE_GL")) {                                                          \
            FAIL() << "no OpenGL on this machine, and GRISAL_REQUIRE_GL asks for it";                                  \
        }                                                                                                              \
        GTEST_SKIP() << "no OpenGL on this machine";                                                                   \
    }
