// SPDX-License-Identifier: MIT
#include "app/ztconfiguration.h"
#include "config/configviews.h"
#include "tests/guienvironment.h"
#include "tests/support.h"

#include <QTreeWidget>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using libconfig::Config;

namespace {

const auto *const environment = testing::AddGlobalTestEnvironment(new GuiEnvironment);

class ConfigViews : public testing::Test
{
protected:
    QString write(const QByteArray &text)
    {
        support::writeFile(path, text);
        return path;
    }

    support::Folder folder;
    const QString path = folder.path(u"zentaro.conf"_s);
};

/// The texts of an item and those below it, indented.
QString shown(const QTreeWidgetItem &item, int depth = 0)
{
    QString text = u"  "_s.repeated(depth) + item.text(0) + u'\n';
    for (int i = 0; i < item.childCount(); ++i)
        text += shown(*item.child(i), depth + 1);
    return text;
}

TEST_F(ConfigViews, ShowTheTreeInOneColumn)
{
    ZTConfiguration config(
        write("t = 1; z : { b = \" x=y \"; n : { c = 2; }; a = ; }; y : { d = 3; };"), u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view(config.newConfigListView());
    EXPECT_EQ(view->columnCount(), 1);
    EXPECT_EQ(view->headerItem()->text(0), u"ConfigurationFile"_s);
    ASSERT_EQ(view->topLevelItemCount(), 1);
    EXPECT_EQ(shown(*view->topLevelItem(0)), path
                                                 + u"\n"
                                                   "  t = 1\n"
                                                   "  z\n"
                                                   "    b =  x=y \n"
                                                   "    a = \n"
                                                   "    n\n"
                                                   "      c = 2\n"
                                                   "  y\n"
                                                   "    d = 3\n"_s);
    EXPECT_FALSE(view->topLevelItem(0)->flags() & Qt::ItemIsEditable);
    EXPECT_TRUE(view->topLevelItem(0)->child(1)->flags() & Qt::ItemIsEditable);
    EXPECT_EQ(std::unique_ptr<QTreeWidget>(Config().buildConfigListView())->topLevelItemCount(), 0);
}

TEST_F(ConfigViews, SaveWhatTheyShowInTheFormatOfTheFile)
{
    struct Row
    {
        QString format;
        QByteArray file;
    };
    const Row rows[] = {
        {u"cfg"_s, "t = \"1\";\nz: \n{\n    b = \" x=y \";\n    a = \"\";\n    n: \n    {\n"
                   "        c = \"2\";\n    };\n\n};\n\n"},
        {u"xml"_s,
         "\n<z\n    b = \" x=y \"\n    a = \"\">\n\n    <n\n        c = \"2\">\n    </n>\n</z>\n"},
    };
    for (const Row &row : rows) {
        Config config(write(row.file), row.format);
        const QString before = config.configTreeText();
        const std::unique_ptr<QTreeWidget> view(config.buildConfigListView());
        support::writeFile(path, "overwritten");
        EXPECT_TRUE(config.loadListView(view.get()));
        EXPECT_EQ(support::readFile(path), row.file);
        EXPECT_EQ(config.configTreeText(), before);
    }
    Config other(write("x"), u"other"_s);
    const std::unique_ptr<QTreeWidget> view(other.buildConfigListView());
    EXPECT_FALSE(other.loadListView(view.get()));
    EXPECT_EQ(support::readFile(path), "x");
}

TEST_F(ConfigViews, SaveItemsThatWereEditedAddedAndRemoved)
{
    Config config(write("z : { a = 1; b = 2; n : { c = 3; }; };"), u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view(config.buildConfigListView());
    QTreeWidgetItem *const z = view->topLevelItem(0)->child(0);
    z->child(0)->setText(0, u"a=new"_s); // a person leaves the blanks away
    z->child(1)->setText(0, u"b"_s);     // and the value
    z->child(2)->setText(0, u"m"_s);
    delete z->child(2)->takeChild(0);
    z->child(2)->addChild(new QTreeWidgetItem({u"k =  two"_s})); // items that nobody typed
    z->child(2)->addChild(new QTreeWidgetItem({u"group"_s}));
    z->child(2)->child(1)->addChild(new QTreeWidgetItem({u"x = 1"_s}));
    EXPECT_TRUE(config.loadListView(view.get()));
    EXPECT_EQ(support::readFile(path),
              "z: \n{\n    a = \"new\";\n    b = \"\";\n    m: \n    {\n        k = \" two\";\n"
              "        group: \n        {\n            x = \"1\";\n        };\n\n    };\n\n};\n\n");
    EXPECT_EQ(config.lookup(u"z.m.k"_s), u" two"_s);
}

TEST_F(ConfigViews, AcceptWhatIsNotThere)
{
    Config config(write("z : { a = 1; };"), u"cfg"_s);
    EXPECT_FALSE(config.loadListView(static_cast<QTreeWidget *>(nullptr)));
    config.loadListView(nullptr, static_cast<QDomDocument *>(nullptr));
    config.loadListView(nullptr, QDomNode());
    config.buildConfigListView(QDomNode(), static_cast<QTreeWidget *>(nullptr));
    EXPECT_EQ(config.lookup(u"z.a"_s), u"1"_s);
    QTreeWidget view; // without items
    EXPECT_TRUE(config.loadListView(&view));
    EXPECT_EQ(support::readFile(path), "");
}

TEST_F(ConfigViews, NestToAnyDepth)
{
    constexpr int Depth = 100'000;
    Config config(write(QByteArray("g:{").repeated(Depth) + "k=1;"), u"none"_s);
    config.readFile(path, u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view(config.buildConfigListView());
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
