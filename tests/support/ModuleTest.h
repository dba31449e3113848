#pragma once

// What tests of the module's rooms are written with, and the names they are written in.

#include "tests/support/FakeHost.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/QtTestPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace ortakit;
using namespace ortakit::test;
using namespace Qt::StringLiterals;
