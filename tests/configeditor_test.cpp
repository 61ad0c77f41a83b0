// SPDX-License-Identifier: MIT
#include "tests/guienvironment.h"
#include "tests/support.h"
#include "tools/window/configeditor.h"
#include "tools/window/paperpane.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSpinBox>
#include <QTest>
#include <QTranslator>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using configtool::ConfigEditor;
using configtool::SheetView;

namespace {

/// An editor on a file, whose questions are answered here.
class Editor : public testing::Test
{
protected:
    Editor()
    {
        editor.setAsk([this](const QString &text, const QString &details, auto) {
            asked.append(text + u'\n' + details);
            return answer;
        });
    }

    void open(const QByteArray &text, const QString &format = u"cfg"_s)
    {
        support::writeFile(path, text);
        ASSERT_TRUE(editor.open({path, format}));
        editor.show();
        editor.activateWindow();
    }

    QByteArray saved()
    {
        EXPECT_TRUE(editor.save());
        return support::readFile(path);
    }

    QTreeWidgetItem *item(const QString &text)
    {
        return tree()->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }

    QTreeWidget *tree() { return editor.findChild<QTreeWidget *>(); }
    QLineEdit *searchField()
    {
        return editor.centralWidget()->findChild<QLineEdit *>({}, Qt::FindDirectChildrenOnly);
    }
    QListWidget *findingsView() { return editor.findChild<QListWidget *>(); }

    /// Runs what the menus call so, without the marks of their keys.
    void choose(const QString &text)
    {
        for (QAction *const action : editor.findChildren<QAction *>()) {
            if (action->text().remove(u'&') == text)
                return action->trigger();
        }
        ADD_FAILURE() << text.toStdString();
    }

    void select(const QString &text) { tree()->setCurrentItem(item(text)); }

    /// Types over what is selected in the line in which an item is edited, which closes then.
    void type(const QString &text, Qt::Key last = Qt::Key_Return)
    {
        auto *const line = tree()->findChild<QLineEdit *>();
        ASSERT_TRUE(line);
        QCoreApplication::processEvents(); // the value is selected then
        QTest::keyClicks(line, text);
        if (last == Qt::Key_unknown)
            return;
        QTest::keyClick(line, last);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void change(const QString &item, const QString &text, Qt::Key last = Qt::Key_Return)
    {
        select(item);
        tree()->editItem(tree()->currentItem());
        type(text, last);
    }

    /// What was asked since the last time, once.
    QString takeAsked()
    {
        EXPECT_EQ(asked.size(), 1);
        return std::exchange(asked, {}).join(u'\n');
    }

    QStringList findings()
    {
        editor.listFindings();
        QStringList texts;
        for (int i = 0; i < findingsView()->count(); ++i)
            texts.append(findingsView()->item(i)->text());
        return texts;
    }

    const support::Folder folder;
    const QString path = folder.path(u"conf/zentaro.conf"_s);
    QStringList asked;
    QMessageBox::StandardButton answer = QMessageBox::Save;
    ConfigEditor editor;
};

const QByteArray small = "zentaro: \n{\n    doc: \n    {\n        paperWidth = \"40\";\n"
                         "        printDate = \"true\";\n    };\n\n};\n\n";

TEST_F(Editor, ChangesAddsRemovesUndoesAndSaves)
{
    open(small);
    EXPECT_EQ(saved(), small);
    change(u"paperWidth = 40"_s, u"32"_s);
    EXPECT_TRUE(editor.isWindowModified());
    select(u"printDate = true"_s);
    choose(u"Switch On or Off"_s);
    choose(u"Add Setting"_s);
    type(u"topMargin = 2"_s);
    select(u"zentaro"_s);
    choose(u"Add Group"_s);
    type(u"db"_s);
    choose(u"Add Setting"_s);
    type(u"dbname=till"_s);
    const QByteArray all = saved();
    EXPECT_EQ(all, "zentaro: \n{\n    doc: \n    {\n        paperWidth = \"32\";\n"
                   "        printDate = \"false\";\n        topMargin = \"2\";\n    };\n\n"
                   "    db: \n    {\n        dbname = \"till\";\n    };\n\n};\n\n");
    EXPECT_FALSE(editor.isWindowModified());

    tree()->clearSelection();
    select(u"doc"_s);
    item(u"topMargin = 2"_s)->setSelected(true); // goes with its group
    item(u"dbname=till"_s)->setSelected(true);
    choose(u"Remove"_s);
    EXPECT_EQ(item(u"zentaro"_s)->childCount(), 1);
    choose(u"Undo"_s);
    EXPECT_EQ(saved(), all);
    for (int i = 0; i < 9; ++i)
        choose(u"Undo"_s);
    EXPECT_EQ(saved(), small);
    for (int i = 0; i < 9; ++i)
        choose(u"Redo"_s);
    EXPECT_EQ(item(u"db"_s)->childCount(), 0);
    EXPECT_EQ(asked, QStringList());
}

TEST_F(Editor, ForgetsAnItemThatIsNotEntered)
{
    open(small);
    select(u"doc"_s);
    choose(u"Add Setting"_s);
    type(u"nothing"_s, Qt::Key_Escape);
    EXPECT_EQ(item(u"doc"_s)->childCount(), 2);
    change(u"paperWidth = 40"_s, u"1"_s, Qt::Key_Escape);
    EXPECT_FALSE(editor.isWindowModified());
    tree()->setCurrentItem(tree()->topLevelItem(0));
    choose(u"Remove"_s); // the file itself stays
    choose(u"Switch On or Off"_s);
    EXPECT_EQ(tree()->topLevelItemCount(), 1);
    EXPECT_FALSE(editor.isWindowModified());

    open("zentaro : { doc : { style = \"a\nb\"; }; };");
    change(u"style = a\nb"_s, u""_s); // nor does the line lose the value's line end
    EXPECT_TRUE(item(u"style = a\nb"_s));
}

TEST_F(Editor, ListsFindingsAsOneTypes)
{
    open(small);
    EXPECT_EQ(findings(), QStringList());
    change(u"paperWidth = 40"_s, u"x"_s, Qt::Key_unknown);
    EXPECT_EQ(findings().size(), 1); // nothing entered yet
    type({}, Qt::Key_Escape);
    EXPECT_EQ(findings(), QStringList());

    change(u"printDate = true"_s, u"a;b"_s);
    const QStringList found = findings();
    ASSERT_EQ(found.size(), 2);
    EXPECT_TRUE(found[0].contains(u"neither"));
    EXPECT_TRUE(found[1].startsWith(u"saving loses"));
    tree()->setCurrentItem(tree()->topLevelItem(0));
    findingsView()->setCurrentRow(1);
    EXPECT_EQ(tree()->currentItem()->text(0), u"printDate = a;b"_s);
}

TEST_F(Editor, ShowsWhatASearchFinds)
{
    open("zentaro : { doc : { printDate = true; paperWidth = 40; }; bin : { path = /date; }; };");
    searchField()->setText(u"DATE"_s);
    EXPECT_FALSE(item(u"printDate = true"_s)->isHidden());
    EXPECT_TRUE(item(u"paperWidth = 40"_s)->isHidden());
    EXPECT_TRUE(item(u"bin"_s)->isHidden()); // the text is in a value
    searchField()->setText(u"bin"_s);
    EXPECT_FALSE(item(u"path = /date"_s)->isHidden()); // its group is found
    searchField()->clear();
    EXPECT_FALSE(item(u"paperWidth = 40"_s)->isHidden());
}

TEST_F(Editor, NamesWhatIsLostBeforeItReplacesAFile)
{
    const QByteArray file = "zentaro : { doc : { topMargin = 1; } ; };\nlater : { a = 1; };";
    open(file);
    answer = QMessageBox::Cancel;
    EXPECT_FALSE(editor.save());
    EXPECT_EQ(support::readFile(path), file);
    EXPECT_TRUE(takeAsked().contains(u"`later`"));
    answer = QMessageBox::Save;
    EXPECT_FALSE(saved().contains("later"));
    asked.clear();

    support::writeFile(path, "another's");
    answer = QMessageBox::Cancel;
    EXPECT_FALSE(editor.save());
    EXPECT_TRUE(takeAsked().contains(u"has changed since"));
    EXPECT_EQ(support::readFile(path), "another's");

    open("zentaro : { doc : { topMargin = 1; }; # a note\n bin : { path = x; }; };");
    EXPECT_FALSE(editor.save()); // the note goes with its line end into a name
    EXPECT_TRUE(takeAsked().contains(u"# a note"));
}

TEST_F(Editor, AsksBeforeChangesAreLost)
{
    open(small);
    EXPECT_TRUE(editor.close());
    editor.show();
    change(u"paperWidth = 40"_s, u"32"_s);
    answer = QMessageBox::Cancel;
    EXPECT_FALSE(editor.close());
    EXPECT_TRUE(takeAsked().contains(u"not saved"));
    answer = QMessageBox::Discard;
    EXPECT_TRUE(editor.close());
    EXPECT_EQ(support::readFile(path), small);
    editor.show();
    answer = QMessageBox::Save;
    EXPECT_TRUE(editor.close());
    EXPECT_TRUE(support::readFile(path).contains("\"32\""));
}

TEST_F(Editor, StartsAFileThatIsNotThere)
{
    ASSERT_TRUE(editor.open({path, u"cfg"_s}));
    editor.show();
    EXPECT_EQ(findings().size(), 1);
    choose(u"Add Group"_s);
    type(u"zentaro"_s);
    choose(u"Add Setting"_s);
    type(u"a = 1"_s);
    EXPECT_EQ(saved(), "zentaro: \n{\n    a = \"1\";\n};\n\n");
    EXPECT_FALSE(editor.open({folder.path(), u"cfg"_s}));
    EXPECT_EQ(asked.size(), 1);
    EXPECT_EQ(tree()->topLevelItem(0)->text(0), path); // what was open stays
    open(QByteArray("<a k='1'/>"), u"xml"_s);
    EXPECT_EQ(saved(), "\n<a\n    k = \"1\">\n</a>\n");
    support::writeFile(path, QByteArray("g:{").repeated(100'000) + "k=1;");
    EXPECT_FALSE(editor.open({path, u"cfg"_s}));
}

TEST_F(Editor, SavesUnderAnotherNameWhereTheFileCannotBeWritten)
{
    support::writeFile(folder.path(u"file"_s), "");
    ASSERT_TRUE(editor.open({folder.path(u"file/zentaro.conf"_s), u"cfg"_s}));
    editor.show();
    QStringList labels;
    for (const QLabel *const label : editor.centralWidget()->findChildren<QLabel *>())
        labels.append(label->text());
    EXPECT_TRUE(labels.join(u'\n').contains(u"cannot be written: Not a directory"));
    choose(u"Add Group"_s);
    type(u"zentaro"_s);
    choose(u"Add Setting"_s);
    type(u"a = 1"_s);
    EXPECT_FALSE(editor.save());
    EXPECT_TRUE(takeAsked().contains(u"Not a directory"));
    EXPECT_TRUE(editor.saveTo({path, u"cfg"_s}));
    EXPECT_EQ(support::readFile(path), "zentaro: \n{\n    a = \"1\";\n};\n\n");
    EXPECT_EQ(editor.windowTitle(), u"zentaro.conf[*] - Configuration");
    EXPECT_TRUE(editor.save()); // it is this file now
}

/// The editor on the sample for 40 columns.
class Paper : public Editor
{
protected:
    Paper() { open(support::readFile(support::sourceDir() + u"/samples/zentaro-40.conf"_s)); }

    SheetView *view() { return dynamic_cast<SheetView *>(area()->widget()); }
    QScrollArea *area() { return editor.findChild<QScrollArea *>(); }
    QLabel *remark() { return area()->parentWidget()->findChildren<QLabel *>().last(); }
    QComboBox *documents() { return area()->parentWidget()->findChild<QComboBox *>(); }

    /// The setting's item, which becomes the current one.
    QTreeWidgetItem *choose(const QString &group, const QString &key)
    {
        QTreeWidgetItem *const parent = item(group);
        for (int i = 0; i < parent->childCount(); ++i) {
            if (parent->child(i)->text(0).startsWith(key + u' ')) {
                tree()->setCurrentItem(parent->child(i));
                return parent->child(i);
            }
        }
        ADD_FAILURE() << key.toStdString();
        return parent;
    }
    using Editor::choose;

    /// The paper's text, with `*` before the marked lines.
    QStringList drawn()
    {
        QCoreApplication::processEvents();
        QStringList lines;
        const preview::Sheet &sheet = view()->rows();
        for (size_t i = 0; i < sheet.rows.size(); ++i)
            lines.append((i < sheet.changed.size() && sheet.changed[i] ? u"*"_s : u""_s)
                         + preview::textOf(sheet.rows[i].text));
        return lines;
    }
};

TEST_F(Paper, IsDrawnAnewWithWhatIsTyped)
{
    choose(u"prefiscaldoc"_s, u"paperWidth"_s);
    EXPECT_TRUE(drawn().contains(u"Preconto"_s)); // the document that has the setting
    auto *const number = editor.findChild<QSpinBox *>();
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, u"32"_s);
    EXPECT_TRUE(drawn().contains(u'*' + QString(32, u'='))) << drawn().join(u'\n').toStdString();
    EXPECT_TRUE(drawn().contains(u" Table: 7"_s)); // not marked
    choose(u"Undo"_s);                             // all that was typed
    EXPECT_EQ(tree()->currentItem()->text(0), u"paperWidth = 40");
    choose(u"prefiscaldoc"_s, u"printTable"_s);
    choose(u"Switch On or Off"_s);
    EXPECT_FALSE(drawn().contains(u" Table: 7"_s));
    EXPECT_TRUE(QTest::qWaitFor([this] { return drawn().filter(u"*"_s).isEmpty(); }));
}

TEST_F(Paper, ShowsEverySampleAndARequestOfOnesOwn)
{
    EXPECT_EQ(documents()->count(), 13);
    int printing = 0;
    for (int i = 0; i < documents()->count(); ++i) {
        documents()->setCurrentIndex(i);
        printing += drawn().size() > 4 ? 1 : 0;
        EXPECT_EQ(remark()->text(), u"");
    }
    EXPECT_EQ(printing, 12); // an order in summary prints nothing
    auto *const pane = dynamic_cast<configtool::PaperPane *>(area()->parentWidget());
    const QString request = folder.path(u"own.xml"_s);
    EXPECT_NE(pane->openRequest(request), u"");
    support::writeFile(request, "j\n");
    EXPECT_NE(pane->openRequest(request), u"");
    const QByteArray sold = support::readFile(support::sourceDir() + u"/samples/printSold.xml"_s);
    support::writeFile(request, sold.chopped(12));
    EXPECT_EQ(pane->openRequest(request), u"");
    EXPECT_GT(drawn().size(), 4);
    EXPECT_TRUE(remark()->text().startsWith(u"line ")) << remark()->text().toStdString();
    choose(u"doc"_s, u"paperWidth"_s);
    EXPECT_EQ(documents()->currentIndex(), 13); // what the person opened stays
}

TEST_F(Paper, ShadesTheSettingsThatShapeALine)
{
    choose(u"prefiscaldoc"_s, u"paperWidth"_s);
    const int line = int(drawn().indexOf(u" Waiter: Niccolò"_s));
    ASSERT_GE(line, 0);
    const auto click = [this](int row) {
        const int height = view()->height() / int(drawn().size());
        QTest::mouseClick(view(), Qt::LeftButton, {}, {20, row * height + height / 2});
    };
    click(line);
    EXPECT_EQ(remark()->text(), u"This line is shaped by: printWaiter");
    const auto isShaded = [](const QTreeWidgetItem *item) {
        return item->background(0).style() != Qt::NoBrush;
    };
    EXPECT_TRUE(isShaded(choose(u"prefiscaldoc"_s, u"printWaiter"_s)));
    EXPECT_FALSE(editor.isWindowModified()); // what was tried is not kept

    click(int(drawn().indexOf(QRegularExpression(u".*Coperto.*"_s))) - 1);
    QTest::keyClick(view(), Qt::Key_Down);
    QTest::keyClick(view(), Qt::Key_Return);
    EXPECT_TRUE(isShaded(choose(u"prefiscaldoc"_s, u"priceFieldWidth"_s)));
    EXPECT_FALSE(isShaded(choose(u"prefiscaldoc"_s, u"printWaiter"_s)));
}

TEST_F(Paper, ChangesASettingOfAllDocumentsAtOnce)
{
    const QByteArray before = saved();
    delete choose(u"receiptdoc"_s, u"paperWidth"_s);
    choose(u"doc"_s, u"paperWidth"_s);
    auto *const number = editor.findChild<QSpinBox *>();
    number->setValue(48);
    choose(u"Set Everywhere"_s);
    EXPECT_EQ(saved().count("paperWidth = \"48\""), 8);
    choose(u"Undo"_s);
    choose(u"Undo"_s);
    EXPECT_EQ(saved().count("paperWidth = \"40\""), 7);
    EXPECT_EQ(before.count("paperWidth = \"40\""), 8);
}

TEST_F(Paper, HasAnEditorThatFitsASetting)
{
    choose(u"doc"_s, u"printDate"_s);
    EXPECT_TRUE(editor.findChild<QCheckBox *>());
    choose(u"doc"_s, u"topMargin"_s);
    EXPECT_EQ(editor.findChild<QSpinBox *>()->maximum(), 1'000);
    choose(u"language"_s, u"basedir"_s)
        ->setText(0, u"basedir = "_s + QStringLiteral(ZENTARO_TRANSLATIONS_DIR));
    QTreeWidgetItem *const file = choose(u"language"_s, u"file"_s);
    QComboBox *languages = nullptr;
    for (QComboBox *const box : editor.findChildren<QComboBox *>())
        languages = box->findText(u"italiano (/zentaro_it)"_s) >= 0 ? box : languages;
    ASSERT_TRUE(languages);
    languages->setFocus();
    EXPECT_TRUE(drawn().contains(u" Waiter: Niccolò"_s));
    QTest::keyClicks(languages, u"it"_s);
    EXPECT_EQ(file->text(0), u"file = /zentaro_it");
    EXPECT_TRUE(drawn().contains(u"* Cameriere: Niccolò"_s)) << drawn().join(u'\n').toStdString();
}

TEST(EditorWindow, SpeaksEveryLanguageWithKeysOfItsOwn)
{
    for (const char *const language : {"en", "it", "de", "fr", "es"}) {
        QTranslator texts;
        const bool isForeign = texts.load(u":/i18n/window_"_s + QLatin1StringView(language));
        EXPECT_EQ(isForeign, QLatin1StringView(language) != "en"_L1);
        QCoreApplication::installTranslator(&texts);
        QLocale::setDefault(QLocale(QLatin1StringView(language)));
        const ConfigEditor editor;
        bool namesDocuments = false;
        for (const QComboBox *const box : editor.findChildren<QComboBox *>())
            namesDocuments |= box->findText(u"The items sold in a period"_s) >= 0;
        EXPECT_EQ(namesDocuments, !isForeign) << language;
        QStringList shortcuts;
        for (const QAction *const action : editor.findChildren<QAction *>())
            shortcuts.append(action->shortcut().toString());
        shortcuts.removeAll(QString());
        EXPECT_EQ(shortcuts.removeDuplicates(), 0) << "of two with one shortcut none works";
        EXPECT_GE(shortcuts.size(), 15);
        for (const QMenu *const menu : editor.findChildren<QMenu *>()) {
            static const QRegularExpression mnemonic(u"&(.)"_s);
            QString letters;
            for (const QAction *const action : menu->actions())
                letters += mnemonic.match(action->text()).captured(1).toLower();
            for (const QChar letter : letters)
                EXPECT_EQ(letters.count(letter), 1) << language << letters.toStdString();
        }
    }
}

TEST(Companion, LoadsNoDesktopLibrary)
{
    const support::Outcome outcome =
        support::zentaro({}, support::Home(), {u"LD_TRACE_LOADED_OBJECTS=1"_s});
    EXPECT_TRUE(outcome.output.contains("libQt6Core.so"));
    for (const char *const library : {"libQt6Gui", "libQt6Widgets", "libQt6Sql"})
        EXPECT_FALSE(outcome.output.contains(library)) << library;
}

TEST(Companion, NamesThePackageOfWhatDraws)
{
    const support::Folder alone;
    const QString program = alone.path(u"zentaro"_s);
    ASSERT_TRUE(QFile::copy(support::zentaroProgram(), program));
    for (const QStringList &words : {QStringList{u"config"_s, u"edit"_s},
                                     QStringList{u"preview"_s, u"-o"_s, u"a.png"_s, u"-"_s}}) {
        const support::Outcome outcome = support::run(program, words, support::Home());
        EXPECT_EQ(outcome.exitStatus, 2);
        EXPECT_EQ(outcome.output, "");
        EXPECT_TRUE(outcome.errors.contains("zentaro-desktop")) << outcome.errors.constData();
    }
}

} // namespace
