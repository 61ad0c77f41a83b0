// SPDX-License-Identifier: MIT
#include "tests/configfiles.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

TEST(ConfigWriter, LeavesTheOldFileWhenTheNewOneCannotBeWritten)
{
    const support::Folder folder;
    const QString path = folder.path(u"zentaro.conf"_s);
    const QByteArray content = "g : { k = \"" + QByteArray(100'000, 'x') + "\"; };";
    support::writeFile(path, content);
    Config config(path, u"cfg"_s);
    testing::internal::CaptureStdout();
    {
        const support::FileLimit limit(50'000);
        EXPECT_FALSE(config.buildConfigFile({}));
    }
    const QString missing = folder.path(u"no/such/folder"_s);
    EXPECT_FALSE(config.buildConfigXmlFile(missing));
    EXPECT_FALSE(Config().buildConfigFile({}));
    const std::string begin = "Error in the method Config::";
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              begin + "buildConfigFile( " + path.toStdString() + " ): Unable To Write File\n"
                  + begin + "buildConfigXmlFile( " + missing.toStdString()
                  + " ): Unable To Open File\n" + begin
                  + "buildConfigFile(  ): Unable To Open File\n");
    EXPECT_EQ(support::readFile(path), content);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(u"zentaro.conf"_s));
}

TEST(ConfigWriter, KeepsWhatTheFileIs)
{
    const support::Folder folder;
    const QString path = folder.path(u"real.conf"_s);
    support::writeFile(path, "g : { k = \xFC; };");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    QFile::link(path, folder.path(u"link.conf"_s));
    for (int i = 0; i < 2; ++i)
        Config(folder.path(u"link.conf"_s), u"cfg"_s).buildConfigFile({});
    EXPECT_EQ(support::readFile(path), "g: \n{\n    k = \"\xFC\";\n};\n\n");
    EXPECT_TRUE(QFileInfo(folder.path(u"link.conf"_s)).isSymLink());
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());
}

TEST(ConfigWriter, WritesToAPipeAsItStands)
{
    const support::Folder folder;
    const QByteArray path = folder.path(u"pipe"_s).toLocal8Bit();
    ASSERT_EQ(mkfifo(path.constData(), 0600), 0);
    const int pipe = open(path.constData(), O_RDWR | O_NONBLOCK);
    support::writeFile(folder.path(u"in"_s), "g : { k = 1; };");
    EXPECT_TRUE(Config(folder.path(u"in"_s), u"cfg"_s).buildConfigFile(folder.path(u"pipe"_s)));
    QByteArray written(100, '\0');
    written.truncate(read(pipe, written.data(), size_t(written.size())));
    close(pipe);
    EXPECT_EQ(written, "g: \n{\n    k = \"1\";\n};\n\n");
}

} // namespace
