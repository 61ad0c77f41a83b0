// SPDX-License-Identifier: MIT
#include "tests/configfiles.h"

#include <csignal>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
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

TEST(ConfigWriter, NeedsAName)
{
    testing::internal::CaptureStdout();
    EXPECT_FALSE(Config().buildConfigFile({}));
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Error in the method Config::buildConfigFile(  ): No such file or directory\n");
}

class NewFile : public testing::Test
{
protected:
    NewFile()
    {
        support::writeFile(path, "old");
        EXPECT_EQ(chmod(name.constData(), 0640), 0);
    }

    struct stat present() const
    {
        struct stat state = {};
        EXPECT_EQ(stat(name.constData(), &state), 0);
        return state;
    }
    bool write(const QByteArray &content) const
    {
        return libconfig::replaceFile(path, content).isEmpty();
    }

    static constexpr uid_t Other = 1;
    const support::Folder folder;
    const QString path = folder.path(u"file"_s);
    const QByteArray name = path.toUtf8();
    const bool isRoot = geteuid() == 0;
};

TEST_F(NewFile, IsReplacedAsAWholeWithOwnerAndMode)
{
    if (isRoot)
        EXPECT_EQ(chown(name.constData(), Other, Other), 0);
    const struct stat before = present();
    const int reader = open(name.constData(), O_RDONLY);
    EXPECT_TRUE(write("new"));
    EXPECT_EQ(support::readFile(path), "new");
    char read[4] = {};
    EXPECT_EQ(pread(reader, read, 4, 0), 3);
    EXPECT_STREQ(read, "old"); // whoever reads it meanwhile gets one or the other
    close(reader);
    const struct stat after = present();
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    EXPECT_EQ(after.st_mode, before.st_mode);
}

TEST_F(NewFile, IsWrittenInPlaceUnderSeveralNames)
{
    const QString other = folder.path(u"other"_s);
    EXPECT_EQ(link(name.constData(), other.toUtf8().constData()), 0);
    for (const QByteArray &content : {"longer than it was", "short", ""}) {
        EXPECT_TRUE(write(content));
        EXPECT_EQ(support::readFile(other), content);
    }
}

TEST_F(NewFile, IsWrittenInPlaceInAFolderThatTakesNoOther)
{
    const QByteArray place = folder.path().toUtf8();
    if (isRoot) { // whom no mode hinders
        EXPECT_EQ(chown(place.constData(), Other, Other), 0);
        EXPECT_EQ(chown(name.constData(), Other, Other), 0);
        EXPECT_EQ(seteuid(Other), 0);
    }
    EXPECT_EQ(chmod(place.constData(), 0500), 0);
    EXPECT_TRUE(write("new"));
    EXPECT_EQ(support::readFile(path), "new");
    EXPECT_EQ(chmod(name.constData(), 0400), 0);
    EXPECT_FALSE(write("newer"));
    EXPECT_EQ(chmod(place.constData(), 0700), 0);
    EXPECT_FALSE(write("newer")); // nor is one replaced that may not be written
    if (isRoot)
        EXPECT_EQ(seteuid(0), 0);
    EXPECT_EQ(support::readFile(path), "new");
}

TEST_F(NewFile, StaysAsItWasWithoutRoom)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit room = {};
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &room), 0);
    for (const bool inPlace : {false, true}) {
        if (inPlace)
            EXPECT_EQ(link(name.constData(), (name + '2').constData()), 0);
        const rlimit little = {10'000, room.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &little), 0);
        EXPECT_FALSE(write(QByteArray(20'000, 'x')));
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &room), 0);
        EXPECT_EQ(support::readFile(path), "old");
    }
}

} // namespace
