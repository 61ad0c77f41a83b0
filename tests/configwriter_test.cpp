// SPDX-License-Identifier: MIT
#include "tests/configfiles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using libconfig::Config;
using support::rewritten;
using support::treeOf;

namespace {

TEST(ConfigWriter, PrintsTheTree)
{
    const support::Folder folder;
    const QString path = folder.path(u"t\u00e9st"_s);
    support::writeFile(path, "t = 1; g : { k\xE9 = \"\xFC\"; n : { x = y; }; };");
    Config config(path, u"cfg"_s);
    testing::internal::CaptureStdout();
    config.printConfigTree();
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Tree \n" + path.toLatin1().toStdString() + "\nt = 1\ng\nk\xE9 = \xFC\nn\nx = y\n");
    testing::internal::CaptureStdout();
    Config().printConfigTree();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Tree \n");
}

TEST(ConfigWriter, WritesGroupsNestedToAnyDepth)
{
    const auto nested = [](int depth) {
        return QByteArray("g:{").repeated(depth) + "k=1;" + QByteArray("};").repeated(depth);
    };
    EXPECT_EQ(treeOf(nested(100'000)), u"g\n"_s.repeated(100'000) + u"k = 1\n"_s);
    const QByteArray deep = rewritten(nested(500));
    EXPECT_EQ(treeOf(deep), treeOf(nested(500)));
    EXPECT_TRUE(rewritten(deep, u"cfg"_s, u"xml"_s).endsWith("\n    </g>\n</g>\n"));
}

TEST(ConfigWriter, NeedsAName)
{
    testing::internal::CaptureStdout();
    EXPECT_FALSE(Config().buildConfigFile({}));
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Error in the method Config::buildConfigFile(  ): Unable To Open File\n");
}

} // namespace
