// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "app/ztconfiguration.h"
#include "config/configviews.h"
#include "tests/configfiles.h"
#include "tests/guienvironment.h"
#include "tests/support.h"

#include <QDomDocument>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using libconfig::Config;
using support::rewritten;
using support::treeOf;

namespace {

/// A configuration on a file of its own.
class Loaded : public Config
{
public:
    explicit Loaded(const QByteArray &text, const QString &format = u"cfg"_s)
    {
        load(text, format);
    }

    int elements() const { return document->childNodes().size(); }
    void load(const QByteArray &text, const QString &format = u"cfg"_s)
    {
        support::writeFile(path(), text);
        readFile(path(), format);
    }

    QString path() const { return folder.path(u"test.conf"_s); }
    QByteArray written() const { return support::readFile(path()); }

private:
    support::Folder folder;
};

const QString noTree = u"Tree \n"_s;

TEST(Config, AnswersDottedKeys)
{
    const Loaded config(R"(zentaro : {
    logger : {
        level = "WARNING";
        filename = print.log;
    };
    language : {
        basedir = " /usr/share/pos/lang ";
    };
};
)");
    const std::pair<QString, QString> rows[] = {
        {u"zentaro.logger.level"_s, u"WARNING"_s},
        {u"zentaro.logger.filename"_s, u"print.log"_s},
        {u"zentaro.language.basedir"_s, u" /usr/share/pos/lang "_s},
        {u"zentaro.logger.size"_s, u""_s},
        {u"logger.level"_s, u""_s},
        {u"zentaro.logger"_s, u""_s},
        {u"zentaro"_s, u""_s},
        {u""_s, u""_s},
        {u"Zentaro.logger.level"_s, u""_s},
        {u"zentaro.logger.level."_s, u"WARNING"_s},      // an empty field ends the key
        {u"zentaro.logger.level..more"_s, u"WARNING"_s}, // whatever follows it
        {u"zentaro.logger..level"_s, u""_s},
        {u"zentaro.logger.level.x"_s, u""_s},
        {u" zentaro.logger.level"_s, u""_s},
    };
    for (const auto &[key, value] : rows) {
        EXPECT_EQ(config.lookup(key), value) << key.toStdString();
        EXPECT_FALSE(config.lookup(key).isNull()) << key.toStdString();
    }
    EXPECT_EQ(config.lookup(QDomNode(), u"zentaro.logger.level"_s), u""_s);
    EXPECT_EQ(Config().lookup(u"zentaro.logger.level"_s), u""_s);
}

TEST(Config, ReadsXmlUpToALimit)
{
    Loaded config({});
    for (const int depth : {1'000, 1'001}) { // one takes a moment, a hundred thousand would minutes
        config.load(QByteArray("<z>").repeated(depth - 1) + "<z a='1'/>"
                        + QByteArray("</z>").repeated(depth - 1),
                    u"xml"_s);
        EXPECT_EQ(config.lookup(u"z."_s.repeated(depth) + u'a'), depth > 1'000 ? u""_s : u"1"_s);
    }
    config.readFile(u"/dev/zero"_s, u"xml"_s); // never ends
    EXPECT_EQ(config.configTreeText(), noTree);
    config.load("<z a=\"1\"/>", u"XML"_s); // an unknown format word
    EXPECT_EQ(config.configTreeText(), noTree);
}

TEST(Config, ReadsAgainWhateverTheFirstReadingLeft)
{
    Loaded config("z:{k=1;}; }; left open");
    EXPECT_EQ(config.lookup(u"z.k"_s), u"1"_s);
    config.load("z:{k=2;};");
    EXPECT_EQ(config.lookup(u"z.k"_s), u"2"_s);
    for (const QString &unreadable : {config.path() + u".missing"_s, support::sourceDir()}) {
        testing::internal::CaptureStdout();
        config.readFile(unreadable, u"cfg"_s);
        EXPECT_FALSE(config.openFile());
        const std::string told = "Error in the method FileReader::open( " + unreadable.toStdString()
                                 + " ): File Not Found\n";
        EXPECT_EQ(testing::internal::GetCapturedStdout(), told + told);
        EXPECT_EQ(config.configTreeText(), noTree);
    }
    config.readFile(u"/missing.xml"_s, u"xml"_s);
    config.load("z:{k=3;};");
    EXPECT_EQ(config.lookup(u"z.k"_s), u"3"_s);
}

class Walked : public Loaded
{
public:
    using Loaded::Loaded;

    /// What is left of the stream.
    std::string rest()
    {
        return stream ? std::string(std::istreambuf_iterator<char>(*stream), {}) : std::string();
    }

    /// Reads a group from the open stream, below the first one.
    void readGroup(const QString &name) { loadFile(name, document->firstChild().firstChild()); }
};

TEST(Config, ReadsAnOpenStreamPieceByPiece)
{
    Walked config("z\xFF:{k=1;} ; n:{k=2;e:{};}; }; the rest");
    EXPECT_EQ(config.rest(), " the rest"); // stays open where a `}` ended the reading
    ASSERT_TRUE(config.openFile());
    EXPECT_TRUE(config.jump('\xFF'));
    EXPECT_TRUE(config.jump(';'));
    EXPECT_TRUE(config.jump(';'));
    EXPECT_TRUE(config.jump('{'));
    config.readGroup(u"m"_s);
    EXPECT_EQ(config.lookup(u"z\u00FF.m.k"_s), u"2"_s);
    EXPECT_EQ(config.rest(), " }; the rest");
    EXPECT_FALSE(config.jump('}'));
    ASSERT_TRUE(config.openFile());
    config.load("z:{k=1;};");
    EXPECT_EQ(config.rest(), ""); // closed at the end of the file
}

TEST(Config, TakesInAFileThatIsReadBesideAnother)
{
    Loaded config("z:{k=1;};");
    support::writeFile(config.path(), "z:{k=2;};");
    for (int i = 0; i < 2; ++i) {
        config.loadFile();
        EXPECT_EQ(config.lookup(u"z.k"_s), u"1"_s); // the first has the first element
        EXPECT_EQ(config.elements(), 2 + i);
    }
}

TEST(ConfigWriter, PrintsTheTreeAndNeedsANameForAFile)
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
    EXPECT_FALSE(Config().buildConfigFile({}));
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Tree \n"
              "Error in the method Config::buildConfigFile(  ): No such file or directory\n");
}

TEST(ConfigWriter, KeepsWhoMayReadTheFile)
{
    Loaded config("z:{k=1;};");
    const QByteArray path = QFile::encodeName(config.path());
    const mode_t mode = geteuid() == 0 ? 0440 : 0640; // root may write it all the same
    ASSERT_EQ(chmod(path.constData(), mode), 0);
    EXPECT_TRUE(config.buildConfigFile({}));
    struct stat now = {};
    ASSERT_EQ(stat(path.constData(), &now), 0);
    EXPECT_EQ(now.st_mode & 07777, mode);
    // An access list: rw for the owner, r for the user 1, nothing for the group and the others.
    const quint16 list[] = {2, 0,      1,      6,  0xFFFF, 0xFFFF, 2,      4,  1, 0,      4,
                            0, 0xFFFF, 0xFFFF, 16, 4,      0xFFFF, 0xFFFF, 32, 0, 0xFFFF, 0xFFFF};
    if (setxattr(path.constData(), "system.posix_acl_access", list, sizeof list, 0) != 0)
        GTEST_SKIP() << "the file system has no access lists";
    EXPECT_TRUE(config.buildConfigFile({}));
    quint16 kept[std::size(list)] = {};
    EXPECT_EQ(getxattr(path.constData(), "system.posix_acl_access", kept, sizeof kept),
              ssize_t(sizeof list));
    EXPECT_TRUE(std::ranges::equal(kept, list));
}

TEST(ConfigWriter, WritesGroupsNestedToAnyDepth)
{
    const auto nested = [](int depth) {
        return QByteArray("g:{").repeated(depth) + "k=1;" + QByteArray("};").repeated(depth);
    };
    EXPECT_EQ(treeOf(nested(100'000)), u"g\n"_s.repeated(100'000) + u"k = 1\n"_s);
    Config tooDeep;
    tooDeep.readContent(nested(4'000), u"conf"_s, u"cfg"_s);
    EXPECT_FALSE(tooDeep.writtenAs(u"cfg"_s)); // 96 MB of blanks
    const QByteArray deep = rewritten(nested(500), u"cfg"_s, u"cfg"_s);
    EXPECT_EQ(treeOf(deep), treeOf(nested(500)));
    EXPECT_TRUE(rewritten(deep, u"cfg"_s, u"xml"_s).endsWith("\n    </g>\n</g>\n"));
}

TEST(ZTConfiguration, ReadsTheUsersFileInLatin1)
{
    const support::Home home("zentaro:{caff\xE8 = \xE8\x80; caff? = asked for in Latin-1;};");
    qputenv("HOME", home.path().toUtf8());
    const ZTConfiguration config;
    EXPECT_EQ(config.getStrValue(u"zentaro.caff\u00E8"_s), u"\u00E8\u0080"_s);
    EXPECT_EQ(config.getStrValue(u"zentaro.caff\u20AC"_s), u"asked for in Latin-1"_s);
    EXPECT_FALSE(config.getStrValue(u"zentaro.missing"_s).isNull());
}

using View = std::unique_ptr<QTreeWidget>;

/// The texts of an item and those below it, indented.
QString shown(const QTreeWidgetItem &item, int depth = 0)
{
    QString text = u"  "_s.repeated(depth) + item.text(0) + u'\n';
    for (int i = 0; i < item.childCount(); ++i)
        text += shown(*item.child(i), depth + 1);
    return text;
}

TEST(ConfigViews, ShowTheTreeAndSaveWhatAPersonMakesOfIt)
{
    const QByteArray text =
        "t = \"1\";\nz: \n{\n    b = \" x=y \";\n    a = \"\";\n    n: \n    {\n"
        "        c = \"2\";\n    };\n\n};\n\n";
    Loaded config(text + "y : { d = 3; };");
    const View view(config.newConfigListView());
    EXPECT_EQ(view->columnCount(), 1);
    EXPECT_EQ(view->headerItem()->text(0), u"ConfigurationFile"_s);
    ASSERT_EQ(view->topLevelItemCount(), 1);
    QTreeWidgetItem *const top = view->topLevelItem(0);
    EXPECT_EQ(shown(*top), config.path()
                               + u"\n  t = 1\n  z\n    b =  x=y \n    a = \n    n\n      c = 2\n"
                                 "  y\n    d = 3\n"_s);
    EXPECT_FALSE(top->flags() & Qt::ItemIsEditable);
    EXPECT_TRUE(top->child(1)->flags() & Qt::ItemIsEditable);
    delete top->takeChild(2);
    support::writeFile(config.path(), "overwritten");
    EXPECT_TRUE(config.loadListView(view.get()));
    EXPECT_EQ(config.written(), text);

    QTreeWidgetItem *const z = top->child(1);
    z->child(0)->setText(0, u" b=new"_s); // a person sets other blanks
    z->child(1)->setText(0, u"a"_s);      // and the value
    z->child(2)->setText(0, u"m"_s);
    z->child(2)->addChild(new QTreeWidgetItem({u"k =  two"_s})); // items that nobody typed
    z->child(2)->addChild(new QTreeWidgetItem({u"group"_s}));
    delete z->child(2)->takeChild(0);
    z->child(2)->child(1)->addChild(new QTreeWidgetItem({u"x = 1"_s}));
    z->child(2)->child(1)->addChild(new QTreeWidgetItem({u"empty"_s}));
    EXPECT_TRUE(config.loadListView(view.get()));
    EXPECT_EQ(config.written(),
              "t = \"1\";\nz: \n{\n    b = \"new\";\n    a = \"\";\n    m: \n    {\n"
              "        k = \" two\";\n        group: \n        {\n"
              "            x = \"1\";\n            empty: \n            {\n            "
              "};\n\n        };\n\n    };\n\n};\n\n");
    EXPECT_EQ(config.lookup(u"z.m.k"_s), u" two"_s);
}

TEST(ConfigViews, SaveInTheFormatOfTheFile)
{
    const QByteArray text =
        "\n<z\n    b = \" x=y \">\n\n    <n\n        c = \"2\">\n    </n>\n</z>\n";
    for (const auto &[format, saved] : {std::pair{u"xml"_s, true}, {u"other"_s, false}}) {
        Loaded config(text, format);
        const QString tree = config.configTreeText();
        const View view(config.buildConfigListView());
        support::writeFile(config.path(), "overwritten");
        EXPECT_EQ(config.loadListView(view.get()), saved);
        EXPECT_EQ(config.written(), saved ? text : "overwritten");
        EXPECT_EQ(config.configTreeText(), tree);
    }
}

TEST(ConfigViews, AcceptWhatIsNotThere)
{
    Loaded config("z : { a = 1; };");
    EXPECT_FALSE(config.loadListView(static_cast<QTreeWidget *>(nullptr)));
    config.loadListView(nullptr, static_cast<QDomDocument *>(nullptr));
    QDomDocument document;
    config.loadListView(nullptr, &document);
    config.loadListView(nullptr, QDomNode());
    config.buildConfigListView(QDomNode(), static_cast<QTreeWidget *>(nullptr));
    EXPECT_EQ(View(Config().buildConfigListView())->topLevelItemCount(), 0);
    EXPECT_EQ(config.lookup(u"z.a"_s), u"1"_s);
    QTreeWidget view; // without items
    EXPECT_TRUE(config.loadListView(&view));
    EXPECT_EQ(config.written(), "");
}

TEST(ConfigViews, NestToAnyDepth)
{
    constexpr int Depth = 150'000;
    Loaded config(QByteArray("g:{").repeated(Depth) + "k=1;");
    const View view(config.buildConfigListView());
    QDomDocument document;
    config.loadListView(view->topLevelItem(0), &document);
    int depth = 0;
    QDomNode node = document.firstChild();
    for (QDomNode below = node.firstChild(); !below.isNull(); below = node.firstChild()) {
        node.removeChild(below); // the toolkit would delete them by recursion
        node = below;
        ++depth;
    }
    EXPECT_EQ(depth, Depth);
}

} // namespace
