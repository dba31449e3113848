#include "state/exchange/StateFile.h"

#include "tests/support/FakeHost.h"
#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using ortakit::readStateFile;
using ortakit::writeStateFile;
using ortakit::test::FakeHost;

namespace {

TEST(StateFile, IsWrittenWithAByteOrderMarkAndReadBack)
{
    const FakeHost host;
    const QString path = host.path(u"state"_s);
    EXPECT_TRUE(writeStateFile(path, u"größe=1\n\nname=\n"_s));
    EXPECT_EQ(FakeHost::readFile(path), "\xEF\xBB\xBFgr\xC3\xB6\xC3\x9F"
                                        "e=1\n\nname=\n");
    EXPECT_EQ(readStateFile(path), QStringList({u"größe=1"_s, QString(), u"name="_s}));
}

TEST(StateFile, WhatIsTooLargeOrNotThereIsNotRead)
{
    const FakeHost host;
    QFile large(host.path(u"large"_s));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(17 * 1024 * 1024));
    EXPECT_FALSE(readStateFile(large.fileName()));
    EXPECT_FALSE(readStateFile(host.path(u"missing"_s)));
}

} // namespace
