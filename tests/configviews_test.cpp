// SPDX-License-Identifier: MIT
#include "app/ztconfiguration.h"
#include "config/configviews.h"
#include "tests/guienvironment.h"
#include "tests/support.h"

#include <QDomDocument>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using libconfig::Config;

namespace {

class ConfigViews : public testing::Test
{
protected:
    /// The path of the file, with this text.
    QString file(const QByteArray &text)
    {
        support::writeFile(path, text);
        return path;
    }
    QByteArray written() const { return support::readFile(path); }

    support::Folder folder;
    const QString path = folder.path(u"zentaro.conf"_s);
};

using View = std::unique_ptr<QTreeWidget>;

/// The texts of an item and those below it, indented.
QString shown(const QTreeWidgetItem &item, int depth = 0)
{
    QString text = u"  "_s.repeated(depth) + item.text(0) + u'\n';
    for (int i = 0; i < item.childCount(); ++i)
        text += shown(*item.child(i), depth + 1);
    return text;
}

TEST_F(ConfigViews, ShowTheTreeAndSaveWhatAPersonMakesOfIt)
{
    const QByteArray text =
        "t = \"1\";\nz: \n{\n    b = \" x=y \";\n    a = \"\";\n    n: \n    {\n"
        "        c = \"2\";\n    };\n\n};\n\n";
    ZTConfiguration config(file(text + "y : { d = 3; };"), u"cfg"_s);
    const View view(config.newConfigListView());
    EXPECT_EQ(view->columnCount(), 1);
    EXPECT_EQ(view->headerItem()->text(0), u"ConfigurationFile"_s);
    ASSERT_EQ(view->topLevelItemCount(), 1);
    QTreeWidgetItem *const top = view->topLevelItem(0);
    EXPECT_EQ(shown(*top), path
                               + u"\n  t = 1\n  z\n    b =  x=y \n    a = \n    n\n      c = 2\n"
                                 "  y\n    d = 3\n"_s);
    EXPECT_FALSE(top->flags() & Qt::ItemIsEditable);
    EXPECT_TRUE(top->child(1)->flags() & Qt::ItemIsEditable);
    delete top->takeChild(2);
    file("overwritten");
    EXPECT_TRUE(config.loadListView(view.get()));
    EXPECT_EQ(written(), text);

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
    EXPECT_EQ(written(), "t = \"1\";\nz: \n{\n    b = \"new\";\n    a = \"\";\n    m: \n    {\n"
                         "        k = \" two\";\n        group: \n        {\n"
                         "            x = \"1\";\n            empty: \n            {\n            "
                         "};\n\n        };\n\n    };\n\n};\n\n");
    EXPECT_EQ(config.lookup(u"z.m.k"_s), u" two"_s);
}

TEST_F(ConfigViews, SaveInTheFormatOfTheFile)
{
    const QByteArray text =
        "\n<z\n    b = \" x=y \">\n\n    <n\n        c = \"2\">\n    </n>\n</z>\n";
    for (const auto &[format, saved] : {std::pair{u"xml"_s, true}, {u"other"_s, false}}) {
        Config config(file(text), format);
        const QString tree = config.configTreeText();
        const View view(config.buildConfigListView());
        file("overwritten");
        EXPECT_EQ(config.loadListView(view.get()), saved);
        EXPECT_EQ(written(), saved ? text : "overwritten");
        EXPECT_EQ(config.configTreeText(), tree);
    }
}

TEST_F(ConfigViews, AcceptWhatIsNotThere)
{
    Config config(file("z : { a = 1; };"), u"cfg"_s);
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
    EXPECT_EQ(written(), "");
}

TEST_F(ConfigViews, NestToAnyDepth)
{
    constexpr int Depth = 100'000;
    Config config(file(QByteArray("g:{").repeated(Depth) + "k=1;"), u"none"_s);
    config.readFile(path, u"cfg"_s);
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
