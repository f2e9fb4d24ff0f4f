#pragma once

#include "tests/support/Field.h"

#include <gtest/gtest.h>

class FieldTest : public testing::Test, protected Field {};
