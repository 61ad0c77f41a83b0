// SPDX-License-Identifier: MIT
#include "tests/configfiles.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using libconfig::Config;
using support::rewritten;
using support::treeOf;

namespace {

TEST(ConfigWriter, WritesTheFormToTheByte)
{
    EXPECT_EQ(rewritten("top = 1; zentaro : { logger : { level = \"WARNING\"; file=a.log ; };"
                        "language : { basedir = \" /lang \"; }; };"),
              "top = \"1\";\n"
              "zentaro: \n"
              "{\n"
              "    logger: \n"
              "    {\n"
              "        level = \"WARNING\";\n"
              "        file = \"a.log\";\n"
              "    };\n"
              "\n"
              "    language: \n"
              "    {\n"
              "        basedir = \" /lang \";\n"
              "    };\n"
              "\n"
              "};\n"
              "\n");
    EXPECT_EQ(
        rewritten("top = 1; zentaro : { a : { k = v; }; b : { c = 2; }; };", u"cfg"_s, u"xml"_s),
        "top = \"1\";\n"
        "\n<zentaro>\n"
        "\n    <a\n        k = \"v\">\n    </a>\n"
        "\n    <b\n        c = \"2\">\n    </b>\n"
        "</zentaro>\n");
    EXPECT_EQ(rewritten(""), "");
    EXPECT_EQ(rewritten("", u"xml"_s, u"xml"_s), "");
}

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

TEST(ConfigWriter, KeepsTheOrderOfTheFile)
{
    QByteArray cfg = "g: \n{\n";
    QByteArray xml = "<?xml version='1.0'?><!-- c --><g";
    for (int i = 40; i > 0; --i) {
        const QByteArray key = "k" + QByteArray::number(i * 7919 % 41);
        cfg += "    " + key + " = \"" + QByteArray::number(i) + "\";\n";
        xml += ' ' + key + "='" + QByteArray::number(i) + '\'';
    }
    cfg += "};\n\n";
    xml += "/>";
    EXPECT_EQ(rewritten(cfg), cfg);
    EXPECT_EQ(rewritten(xml, u"xml"_s), cfg);
    EXPECT_EQ(rewritten("g : { a = 1; b = 2; a = 3; };"),
              "g: \n{\n    a = \"3\";\n    b = \"2\";\n};\n\n");
}

/// A random tree in the "cfg" form, of what the form gives back.
QByteArray randomFile(QRandomGenerator &random)
{
    const auto text = [&random](const QByteArray &letters, int least) {
        QByteArray result;
        for (int i = random.bounded(least, 9); i > 0; --i)
            result += letters[random.bounded(int(letters.size()))];
        return result;
    };
    const QByteArray nameLetters = "ab\xE9 .{;\"#<&-";
    const QByteArray valueLetters = "ab\xE9 :={}\n<&'\xA0";
    QByteArray file;
    if (random.bounded(3) == 0)
        file += "x" + text("ab", 0) + " = \"" + text(valueLetters, 0) + "\";\n";
    const auto group = [&] { return "g" + text(nameLetters, 0) + "x : { first = 1;"; };
    file += group();
    int open = 1;
    for (int i = random.bounded(30); i > 0; --i) {
        const int kind = random.bounded(4);
        if (kind == 0 && ++open)
            file += group();
        else if (kind == 1 && open > 1 && open--)
            file += "};\n";
        else
            file += "k" + text(nameLetters, 0) + "x = \"" + text(valueLetters, 0) + "\";\n";
    }
    for (; open > 0; --open)
        file += "};\n";
    return file;
}

TEST(ConfigWriter, GivesRandomTreesBack)
{
    QRandomGenerator random(20'26);
    for (int i = 0; i < 150; ++i) {
        const QByteArray file = randomFile(random);
        const QByteArray written = rewritten(file);
        ASSERT_EQ(treeOf(file), treeOf(written)) << file.toStdString();
        ASSERT_EQ(rewritten(written), written);
    }
}

TEST(ConfigWriter, LosesWhatTheFormsDoNotHold)
{
    struct Row
    {
        QByteArray in;
        QString from;
        QString to;
        QString back;
    };
    const Row rows[] = {
        {"a : { k = 1; }; b : { k = 2; };", u"cfg"_s, u"cfg"_s, u"a\nk = 1\n"_s},
        {"<a k='x\"y'/>", u"xml"_s, u"cfg"_s, u"a\nk = xy\n"_s},
        {"<a k='x;y' l='z'/>", u"xml"_s, u"cfg"_s, u"a\nk = x\ny\";\n    l = z\n"_s},
        {"<a k='\xE2\x82\xAC'/>", u"xml"_s, u"cfg"_s, u"a\nk = ?\n"_s},
        {"<a:b k='1'/>", u"xml"_s, u"cfg"_s, u"a\nk = 1\n"_s},
        {"<a><b/></a>", u"xml"_s, u"cfg"_s, u"a\n"_s},
        {"a : { k = 1; b : { c : { }; }; };", u"cfg"_s, u"cfg"_s, u"a\nk = 1\n"_s},
        {"<a k='1'>text<!-- c --><b l='2'/><![CDATA[d]]></a>", u"xml"_s, u"xml"_s,
         u"a\nk = 1\nb\nl = 2\n"_s},
        {"<a k='\xE2\x82\xAC'/>", u"xml"_s, u"xml"_s, u"a\nk = \u20ac\n"_s},
        {"<a k='&lt;'/>", u"xml"_s, u"xml"_s, u""_s},
    };
    for (const Row &row : rows)
        EXPECT_EQ(treeOf(rewritten(row.in, row.from, row.to), row.to), row.back)
            << row.in.toStdString();
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

/// Runs with files limited to a number of bytes, as on a full disk.
class FileLimit
{
public:
    explicit FileLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, SIG_IGN);
    }
    FileLimit(const FileLimit &) = delete;
    FileLimit &operator=(const FileLimit &) = delete;
    ~FileLimit() { setrlimit(RLIMIT_FSIZE, &before); }

private:
    rlimit before;
};

TEST(ConfigWriter, LeavesTheOldFileWhenTheNewOneCannotBeWritten)
{
    const support::Folder folder;
    const QString path = folder.path(u"zentaro.conf"_s);
    const QByteArray content = "g : { k = \"" + QByteArray(100'000, 'x') + "\"; };";
    support::writeFile(path, content);
    Config config(path, u"cfg"_s);
    testing::internal::CaptureStdout();
    {
        const FileLimit limit(50'000);
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
