// SPDX-License-Identifier: MIT
#include "tests/guienvironment.h"
#include "tests/support.h"
#include "tools/window/configeditor.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

using namespace Qt::StringLiterals;
using configtool::ConfigEditor;
using support::readFile;
using support::writeFile;

namespace {

/// An editor on a file, whose questions are answered here.
class Editor : public testing::Test
{
protected:
    Editor()
    {
        answering.callOnTimeout([this] {
            if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                asked += box->text() + box->informativeText() + u'\n';
                box->done(answer);
            }
        });
        answering.start(5);
        editor.show();
    }

    void open(const QByteArray &text, const QString &format = u"cfg"_s)
    {
        writeFile(path, text);
        ASSERT_TRUE(editor.open({path, format}));
    }
    QByteArray saved() { return editor.save() ? readFile(path) : "not saved"; }
    QTreeWidgetItem *item(const QString &text)
    {
        return tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    /// Runs what the menus call so, without the marks of their keys, for the current item or
    /// another; then types over what is selected in the line that it opens, if any text.
    void choose(const QString &text, const QString &about = {}, const QString &typed = {},
                Qt::Key last = Qt::Key_Return)
    {
        if (!about.isEmpty())
            tree->setCurrentItem(item(about));
        int found = 0;
        for (QAction *const action : editor.findChildren<QAction *>()) {
            if (action->text().remove(u'&') == text && ++found)
                action->trigger();
        }
        EXPECT_EQ(found, 1) << text.toStdString();
        if (!typed.isNull())
            type(typed, last);
    }
    void type(const QString &text, Qt::Key last)
    {
        auto *const line = tree->findChild<QLineEdit *>();
        ASSERT_TRUE(line);
        QCoreApplication::processEvents(); // the value is selected then
        QTest::keyClicks(line, text);
        QTest::keyClick(line, last);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// Whether something was not done, after a question with this text.
    bool isRefused(bool isDone, const QString &text)
    {
        return !isDone && std::exchange(asked, {}).count(text) == 1;
    }
    QString findings()
    {
        editor.listFindings();
        QString texts;
        for (int i = 0; i < list->count(); ++i)
            texts += list->item(i)->text() + u'\n';
        return texts;
    }

    const support::Folder folder;
    const QString path = folder.path(u"conf/zentaro.conf"_s);
    QString asked;
    QMessageBox::StandardButton answer = QMessageBox::Cancel;
    QTimer answering;
    ConfigEditor editor;
    QTreeWidget *const tree = editor.findChild<QTreeWidget *>();
    QListWidget *const list = editor.findChild<QListWidget *>();
};

const QByteArray small = "zentaro: \n{\n    doc: \n    {\n        paperWidth = \"40\";\n"
                         "        printDate = \"true\";\n    };\n\n};\n\n";

TEST_F(Editor, ChangesAddsRemovesUndoesAndSaves)
{
    open(small);
    choose(u"Rename"_s, u"paperWidth = 40"_s, u"32"_s);
    EXPECT_TRUE(editor.isWindowModified());
    choose(u"Switch On or Off"_s, u"printDate = true"_s);
    choose(u"Add Setting"_s, {}, u"topMargin = 2"_s);
    choose(u"Add Group"_s, u"zentaro"_s, u"db"_s);
    choose(u"Add Setting"_s, {}, u"dbname=till"_s);
    const QByteArray all = saved();
    EXPECT_EQ(all, "zentaro: \n{\n    doc: \n    {\n        paperWidth = \"32\";\n"
                   "        printDate = \"false\";\n        topMargin = \"2\";\n    };\n\n"
                   "    db: \n    {\n        dbname = \"till\";\n    };\n\n};\n\n");
    EXPECT_FALSE(editor.isWindowModified());

    tree->setCurrentItem(item(u"doc"_s));
    for (const auto &text : {u"paperWidth = 32"_s, u"topMargin = 2"_s, u"dbname=till"_s})
        item(text)->setSelected(true); // two of them go with their group
    choose(u"Remove"_s);
    EXPECT_EQ(item(u"zentaro"_s)->childCount(), 1);
    choose(u"Undo"_s);
    choose(u"Remove"_s, u"paperWidth = 32"_s);
    EXPECT_EQ(tree->currentItem(), item(u"printDate = false"_s)); // not the group, to go next
    choose(u"Undo"_s);
    EXPECT_EQ(saved(), all);
    for (int i = 0; i < 5; ++i)
        choose(u"Undo"_s);
    EXPECT_EQ(saved(), small);
    for (int i = 0; i < 6; ++i)
        choose(u"Redo"_s);
    EXPECT_EQ(item(u"doc"_s)->childCount(), 2);
    EXPECT_EQ(asked, u"");

    open("zentaro : { doc : { a = 1; b = 1; c = 1; d = 1; e = 1; f = 1; g = 1; h = 1; }; };");
    tree->setCurrentItem(item(u"a = 1"_s));
    for (int i = 1; i < 8; ++i)
        item(u"doc"_s)->child(i)->setSelected(true);
    const QSignalSpy current(tree, &QTreeWidget::currentItemChanged);
    for (const auto &text : {u"Remove"_s, u"Undo"_s, u"Redo"_s})
        choose(text);
    EXPECT_LE(current.count(), 5) << "for each all is laid out, of thousands for seconds";
}

TEST_F(Editor, ForgetsAnItemThatIsNotEntered)
{
    open(small);
    for (const Qt::Key last : {Qt::Key_Return, Qt::Key_Escape}) {
        const bool isGivenUp = last == Qt::Key_Escape;
        choose(u"Add Setting"_s, u"doc"_s, isGivenUp ? u"nothing"_s : u""_s, last);
        EXPECT_EQ(item(u"doc"_s)->childCount(), 2);
        choose(u"Rename"_s, u"paperWidth = 40"_s, isGivenUp ? u"1"_s : u"40"_s, last);
    }
    tree->setCurrentItem(tree->topLevelItem(0));
    for (const auto &nothing : {u"Undo"_s, u"Redo"_s, u"Remove"_s, u"Switch On or Off"_s})
        choose(nothing);
    EXPECT_EQ(tree->topLevelItemCount(), 1); // the file itself stays
    EXPECT_FALSE(editor.isWindowModified());
}

TEST_F(Editor, ListsFindingsAsOneTypesAndGoesToThem)
{
    open(small);
    choose(u"Rename"_s, u"paperWidth = 40"_s, u"x"_s, Qt::Key_Left);
    EXPECT_TRUE(findings().contains(u"wants a whole number")); // nothing entered yet
    type({}, Qt::Key_Escape);
    EXPECT_EQ(findings(), u"");
    choose(u"Rename"_s, u"printDate = true"_s, u"a;b"_s);
    EXPECT_TRUE(findings().contains(QRegularExpression(u"neither.*\nsaving loses.*\n$"_s)));
    tree->setCurrentItem(tree->topLevelItem(0));
    list->setCurrentRow(1);
    EXPECT_EQ(tree->currentItem()->text(0), u"printDate = a;b"_s);

    open("zentaro : { doc : { printDate = true; topMargin = 1\n }; };");
    EXPECT_TRUE(findings().startsWith(u"In the file, line 1: no `;`"));
    choose(u"Next Finding"_s);
    EXPECT_TRUE(tree->currentItem()->text(0).startsWith(u"topMargin"));
}

TEST_F(Editor, ShowsWhatASearchFinds)
{
    open("zentaro : { doc : { printDate = 1; paperWidth = 2; }; bin : { path = date; }; };");
    const auto found = [this](const QString &text) {
        QWidget *const center = editor.centralWidget();
        center->findChild<QLineEdit *>({}, Qt::FindDirectChildrenOnly)->setText(text);
        QString marks;
        for (const auto &each : {u"printDate = 1"_s, u"paperWidth = 2"_s, u"path = date"_s})
            marks += item(each)->isHidden() ? u'-' : u'+';
        return marks;
    };
    EXPECT_EQ(found(u"DATE"_s), u"+--"); // in a value it is not looked for
    EXPECT_EQ(found(u"zentaro.bin"_s), u"--+");
    EXPECT_EQ(found({}), u"+++");
}

TEST_F(Editor, AsksBeforeAnythingIsLost)
{
    const QByteArray file = "zentaro : { doc : { topMargin = 1; } ; };\nlater : { a = 1; };";
    open(file);
    EXPECT_TRUE(isRefused(editor.save(), u"`later`"_s));
    EXPECT_EQ(readFile(path), file);
    writeFile(path, "another's");
    EXPECT_TRUE(isRefused(editor.save(), u"has changed since"_s));
    open("zentaro : { doc : { topMargin = 1; }; # a note\n bin : { path = x; }; };");
    EXPECT_TRUE(isRefused(editor.save(), u"# a note"_s)); // it goes into a name

    open(small);
    choose(u"Rename"_s, u"paperWidth = 40"_s, u"32"_s);
    EXPECT_TRUE(isRefused(editor.close(), u"not saved"_s));
    for (const auto button : {QMessageBox::Discard, QMessageBox::Save}) {
        answer = button;
        editor.show();
        EXPECT_TRUE(editor.close());
        EXPECT_EQ(readFile(path).contains("\"32\""), button == QMessageBox::Save);
    }
}

TEST_F(Editor, StartsAFileAndSavesItElsewhereWhereItCannotBeWritten)
{
    const QString deep = folder.path(u"file"_s);
    writeFile(deep, QByteArray("g:{").repeated(100'000) + "k=1;");
    ASSERT_TRUE(editor.open({deep + u"/zentaro.conf"_s, u"cfg"_s}));
    EXPECT_TRUE(findings().contains(u"cannot be written: Not a directory"));
    choose(u"Add Group"_s, {}, u"zentaro"_s);
    choose(u"Add Setting"_s, {}, u"a = 1"_s);
    EXPECT_TRUE(isRefused(editor.save(), u"Not a directory"_s));
    EXPECT_TRUE(editor.saveTo({path, u"cfg"_s}));
    EXPECT_EQ(editor.windowTitle(), u"zentaro.conf[*] - Configuration");
    EXPECT_EQ(saved(), "zentaro: \n{\n    a = \"1\";\n};\n\n"); // it is this file now
    for (const QString &bad : {folder.path(), deep}) {
        EXPECT_FALSE(editor.open({bad, u"cfg"_s}));
        EXPECT_EQ(tree->topLevelItem(0)->text(0), path); // what was open stays
    }
    open(QByteArray("<a k='1'/>"), u"xml"_s);
    EXPECT_EQ(saved(), "\n<a\n    k = \"1\">\n</a>\n");
}

/// The editor on the sample for 40 columns.
class Paper : public Editor
{
protected:
    Paper() { open(readFile(support::sourceDir() + u"/samples/zentaro-40.conf"_s)); }

    /// Makes a setting of the group the current one.
    QTreeWidgetItem *select(const QString &key, const QString &group = u"prefiscaldoc"_s)
    {
        tree->setCurrentItem(configtool::ConfigTree::childOf(item(group), false, key));
        return tree->currentItem();
    }
    /// The paper's text, with `*` before the marked lines.
    QStringList drawn()
    {
        QCoreApplication::processEvents();
        QStringList lines;
        for (const preview::Row &row : pane->shown().rows)
            lines.append((row.isChanged ? u"*"_s : u""_s) + preview::textOf(row.text));
        return lines;
    }

    QListView *const view = editor.findChild<QListView *>(u"paper"_s);
    configtool::PaperPane *const pane = dynamic_cast<configtool::PaperPane *>(view->parentWidget());
    QLabel *const remark = pane->findChildren<QLabel *>().last();
    QComboBox *const documents = pane->findChild<QComboBox *>();
};

TEST_F(Paper, IsDrawnAnewWithWhatIsTyped)
{
    select(u"paperWidth"_s);
    EXPECT_TRUE(drawn().contains(u"Preconto"_s)); // the document that has the setting
    auto *const number = editor.findChild<QSpinBox *>();
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, u"32"_s);
    EXPECT_TRUE(drawn().contains(u'*' + QString(32, u'='))) << drawn().join(u'\n').toStdString();
    EXPECT_TRUE(drawn().contains(u" Table: 7"_s)); // not marked
    choose(u"Undo"_s);                             // all that was typed
    EXPECT_EQ(tree->currentItem()->text(0), u"paperWidth = 40");
    EXPECT_TRUE(QTest::qWaitFor([this] { return drawn().filter(u"*"_s).isEmpty(); }));

    const QByteArray before = saved();
    select(u"paperWidth"_s);
    choose(u"Remove"_s);
    select(u"paperWidth"_s, u"doc"_s);
    editor.findChild<QSpinBox *>()->setValue(48);
    choose(u"Set Everywhere"_s);
    EXPECT_EQ(saved().count("paperWidth = \"48\""), 8);
    for (int i = 0; i < 3; ++i)
        choose(u"Undo"_s);
    EXPECT_EQ(saved(), before);
    select(u"basedir"_s, u"language"_s); // a path, which the file has in its bytes
    const auto line = [this] {
        QCoreApplication::processEvents(); // its editor is visible then
        choose(u"Change Value"_s);
        return qobject_cast<QLineEdit *>(editor.focusWidget());
    };
    line()->selectAll();
    QTest::sendKeyEvent(QTest::Click, line(), Qt::Key_unknown, u"/caff\u00e8"_s, Qt::NoModifier);
    EXPECT_TRUE(saved().contains("basedir = \"/caff\xC3\xA8\""));
    select(u"paperWidth"_s);
    select(u"basedir"_s, u"language"_s);
    EXPECT_EQ(line()->text(), u"/caff\u00e8");
}

TEST_F(Paper, ShowsEverySampleAndARequestOfOnesOwn)
{
    for (int i = 0; i < documents->count(); ++i) {
        documents->setCurrentIndex(i);
        EXPECT_EQ(drawn().size() > 4 && remark->text().isEmpty(), i != 6)
            << i; // an order in summary
    }
    const QString request = folder.path(u"own.xml"_s);
    writeFile(request, "j\n");
    EXPECT_NE(pane->openRequest(request), u"");
    writeFile(request, readFile(support::sourceDir() + u"/samples/printSold.xml"_s).chopped(12));
    EXPECT_EQ(pane->openRequest(request), u"");
    EXPECT_GT(drawn().size(), 4);
    EXPECT_TRUE(remark->text().startsWith(u"line ")) << remark->text().toStdString();
    select(u"paperWidth"_s);
    EXPECT_EQ(documents->currentIndex(), 13); // what the person opened stays
}

TEST_F(Paper, ShadesTheSettingsThatShapeALine)
{
    select(u"paperWidth"_s);
    const auto click = [this](const QString &text, int above) {
        const qsizetype row = drawn().indexOf(QRegularExpression(u".*"_s + text + u".*"_s)) - above;
        const QModelIndex place = view->model()->index(int(row), 0);
        view->scrollTo(place);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(place).center());
    };
    const auto isShaded = [this](const QString &key) {
        return select(key)->background(0).style() != Qt::NoBrush;
    };
    click(u"Niccolò"_s, 0);
    EXPECT_EQ(remark->text(), u"This line is shaped by: printWaiter");
    EXPECT_TRUE(isShaded(u"printWaiter"_s));
    EXPECT_FALSE(editor.isWindowModified()); // what was tried is not kept
    click(u"Coperto"_s, 1);
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_TRUE(isShaded(u"priceFieldWidth"_s));
    EXPECT_FALSE(isShaded(u"printWaiter"_s));
}

TEST_F(Paper, ChoosesTheLabelsLanguageWithItsFolder)
{
    choose(u"Rename"_s, select(u"basedir"_s, u"language"_s)->text(0),
           QStringLiteral(ZENTARO_TRANSLATIONS_DIR));
    const QTreeWidgetItem *const file = select(u"file"_s, u"language"_s);
    EXPECT_TRUE(drawn().contains(u" Waiter: Niccolò"_s));
    for (QComboBox *const box : editor.findChildren<QComboBox *>()) {
        if (box->findText(u"italiano (/zentaro_it)"_s) >= 0)
            QTest::keyClicks(box, u"it"_s);
    }
    EXPECT_EQ(file->text(0), u"file = /zentaro_it");
    EXPECT_TRUE(drawn().contains(u"* Cameriere: Niccolò"_s)) << drawn().join(u'\n').toStdString();
}

TEST_F(Editor, SpeaksEveryLanguageWithKeysOfItsOwn)
{
    for (const auto language : {"en"_L1, "it"_L1, "de"_L1, "fr"_L1, "es"_L1}) {
        QTranslator texts;
        const bool isForeign = language != "en"_L1;
        EXPECT_EQ(texts.load(u":/i18n/window_"_s + language), isForeign);
        QCoreApplication::installTranslator(&texts);
        QLocale::setDefault(QLocale(language));
        const ConfigEditor foreign;
        EXPECT_EQ(foreign.findChild<QComboBox *>()->itemText(0).startsWith(u"The"), !isForeign);
        open("zentaro : { doc : { no = 1; }; };");
        EXPECT_EQ(!findings().startsWith(u"nothing reads"), isForeign) << findings().toStdString();
        QStringList keys; // of two alike none works
        for (const QMenu *const menu : foreign.findChildren<QMenu *>()) {
            for (const QAction *const action : menu->actions()) {
                keys += action->shortcut().toString();
                if (const QString letter = action->text().section(u'&', 1).left(1).toLower();
                    !letter.isEmpty())
                    keys += menu->title() + letter;
            }
        }
        keys.removeAll(QString());
        EXPECT_EQ(keys.removeDuplicates(), 0) << keys.join(u' ').toStdString();
    }
}

TEST(Companion, LoadsNoDesktopLibraryAndNamesThePackageThatDoes)
{
    const support::Folder alone;
    const QString program = alone.path(u"zentaro"_s);
    ASSERT_TRUE(QFile::copy(support::zentaroProgram(), program));
    const QByteArray libraries =
        support::run(program, {}, support::Home(), {u"LD_TRACE_LOADED_OBJECTS=1"_s}).output;
    EXPECT_TRUE(libraries.contains("libQt6Core.so"));
    EXPECT_FALSE(libraries.contains("libQt6Gui") || libraries.contains("libQt6Sql"));
    for (const auto &words : {u"config edit"_s, u"preview -o a.png -"_s})
        EXPECT_TRUE(support::run(program, words.split(u' '), support::Home())
                        .errors.contains("zentaro-desktop"));
}

} // namespace
