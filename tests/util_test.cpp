// SPDX-License-Identifier: MIT
#include "tests/support.h"
#include "util/hlibrary.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray request = "PaperWindow: Insert a new sheet";
const QByteArray sevenLines = "1\n2\n3\n4\n5\n6\n7\n";
const QByteArray longLine =
    QByteArray(127, 'a') + QByteArray(127, 'b') + QByteArray(46, 'c') + '\n';

class Copy : public testing::Test
{
protected:
    Copy() { std::freopen("/dev/null", "r", stdin); } // nobody presses Enter

    const support::Folder folder;
    const QString source = folder.path(u"source"_s);
    const QString target = folder.path(u"target"_s);
};

} // namespace

TEST(TruncateDecimal, RoundsOnTheThirdDecimalAndCutsTheRest)
{
    const QString cases =
        u"1.2349:1.23 1.2351:1.24 1.235:1.24 3:3.00 12.5:12.50 0.29:0.29 1.005:1.00 0.285:0.29"
        " -1.239:-1.23 -1.235:-1.23 0:0.00 -0:0.00 -0.009:0.00 -0.5:-0.50 0.005:0.01 0.999:1.00"
        " 2147483.647:2147483.65 1e300:2147483.65 -2147483.7:-2147483.64 -inf:-2147483.64"
        " 0.0049:0.00 nan:0.00"_s;
    for (const QString &row : cases.split(u' '))
        EXPECT_EQ(HLibrary::truncateDecimal(row.section(u':', 0, 0).toDouble()),
                  row.section(u':', 1));
}

TEST_F(Copy, AsksForPaperAfterEverySheet)
{
    const std::tuple<QByteArray, QString, int> cases[] = {{sevenLines, u"2"_s, 3},
                                                          {sevenLines, u"6"_s, 1},
                                                          {sevenLines, u"7"_s, 0},
                                                          {sevenLines, u"x"_s, 0},
                                                          {longLine + longLine, u"5"_s, 1}};
    for (const auto &[content, linesPerSheet, requests] : cases) {
        support::writeFile(source, content);
        support::writeFile(target, "longer than what comes" + longLine + longLine);
        testing::internal::CaptureStdout();
        EXPECT_TRUE(HLibrary::copy(source, target, linesPerSheet, {}));
        EXPECT_EQ(testing::internal::GetCapturedStdout(),
                  (request + '\n').repeated(requests).toStdString());
        EXPECT_EQ(support::readFile(target), content);
        EXPECT_FALSE(std::feof(stdin)); // nobody read it
    }
}

TEST_F(Copy, TakesOnePage)
{
    const unsigned most = std::numeric_limits<unsigned>::max();
    const QByteArray binary("\0\xff\r\n\0no end", 11);
    const std::tuple<QByteArray, unsigned, unsigned, bool, QByteArray> cases[] = {
        {sevenLines, 3, 1, true, "4\n5\n6\n"},
        {sevenLines, 3, 2, true, "7\n"},
        {sevenLines, 7, 0, true, sevenLines},
        {sevenLines, 7, 1, false, ""}, // the end comes with the last line that is skipped
        {sevenLines, 0, 5, true, sevenLines},
        {sevenLines, most, most, false, ""}, // in 32 bits the product is 1
        {binary, 1, 0, true, binary.first(4)},
        {binary, 1, 1, true, binary.mid(4)},
        {"", 2, 0, true, ""},
        {longLine, 1, 1, true, longLine.mid(127, 127)}};
    for (const auto &[content, linesPerPage, page, copied, result] : cases) {
        support::writeFile(source, content);
        EXPECT_EQ(HLibrary::copy(source, target, linesPerPage, 0, page), copied);
        EXPECT_EQ(support::readFile(target), result);
    }
}

TEST_F(Copy, TellsFailureAndLosesNothing)
{
    support::writeFile(source, sevenLines);
    QFile::link(source, folder.path(u"link"_s));
    testing::internal::CaptureStderr();
    const std::tuple<QString, QString, bool> cases[] = {
        {folder.path(u"missing"_s), target, false},
        {u""_s, target, false},
        {source, u""_s, false},
        {source, folder.path(u"no/folder"_s), false},
        {source, source, false},
        {source, folder.path(u"link"_s), false},
        {source, u"/dev/full"_s, false},
        {u"/proc/self/mem"_s, target, false}, // opens, and does not read
        {u"/proc/version"_s, target, true}};  // has no size beforehand
    for (const auto &[from, to, copied] : cases) {
        EXPECT_EQ(HLibrary::copy(from, to, 0U, 0U), copied) << from.toStdString();
        EXPECT_EQ(HLibrary::copy(from, to, 9U, 0U, 0U), copied) << from.toStdString();
    }
    EXPECT_EQ(support::readFile(source), sevenLines);
    EXPECT_EQ(support::readFile(target), support::readFile(u"/proc/version"_s));

    HLibrary::touch(target);
    EXPECT_EQ(support::readFile(target), "");
    HLibrary::touch(folder.path(u"no/folder"_s));
    HLibrary::touch({});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");

    // A name that the toolkit takes for a resource of its own.
    QDir::setCurrent(folder.path());
    support::writeFile(u"./:a"_s, sevenLines);
    EXPECT_TRUE(HLibrary::copy(u":a"_s, u":b"_s, 0U, 0U));
    EXPECT_EQ(support::readFile(u"./:b"_s), sevenLines);
    HLibrary::touch(u":b"_s);
    EXPECT_EQ(support::readFile(u"./:b"_s), "");
}

TEST_F(Copy, WaitsForEnterOnATerminal)
{
    support::writeFile(source, sevenLines);
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        ::alarm(60); // lest both wait for ever
        std::freopen("/dev/null", "w", stdout);
        _exit(HLibrary::copy(source, target, 2U, 0U) && std::getchar() == 'x' ? 0 : 1);
    }
    for (const char *const copied : {"1\n2\n3\n", "1\n2\n3\n4\n5\n", "1\n2\n3\n4\n5\n6\n7\n"}) {
        QByteArray shown;
        char c = 0;
        while (!shown.endsWith(request + "\r\n") && ::read(terminal, &c, 1) == 1)
            shown += c;
        EXPECT_EQ(support::readFile(target), copied);
        EXPECT_EQ(::write(terminal, "\n", 1), 1);
    }
    EXPECT_EQ(::write(terminal, "x\n", 2), 2); // the first that is left over
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    ::close(terminal);
}

TEST_F(Copy, ShowsAMessageBoxInAProgramWithWindows)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 1;
    char name[] = "till";
    char *argv[] = {name, nullptr};
    QApplication application(argc, argv);
    support::writeFile(source, sevenLines);
    QString shown;
    QTimer watcher;
    QObject::connect(&watcher, &QTimer::timeout, [&] {
        if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            EXPECT_EQ(box->thread(), application.thread());
            shown += u"%1|%2|%3|%4"_s.arg(box->windowTitle(), box->text())
                         .arg(box->buttons().size())
                         .arg(QString::fromUtf8(support::readFile(target)));
            box->accept();
        }
    });
    watcher.start(1);
    EXPECT_TRUE(HLibrary::copy(source, target, 4U, 0U));

    // Another thread's copy waits for the box, which belongs to this one.
    const std::unique_ptr<QThread> worker(
        QThread::create([&] { HLibrary::copy(source, target, 4U, 0U); }));
    QObject::connect(worker.get(), &QThread::finished, &application, &QCoreApplication::quit);
    worker->start();
    QApplication::exec();
    worker->wait();
    EXPECT_EQ(shown, u"PaperWindow|Insert a new sheet|1|1\n2\n3\n4\n5\n"_s.repeated(2));

    QComboBox drinks;
    drinks.addItems({u"5"_s, u"tea"_s, u"Tea time"_s, u"Tea"_s, u"Tea"_s});
    drinks.setItemData(0, 5, Qt::DisplayRole);
    drinks.insertSeparator(5);
    for (const auto &[text, index] :
         {std::pair{u"Tea"_s, 3}, {u"Te"_s, -1}, {u"5"_s, 0}, {u"05"_s, -1}, {u""_s, 5}})
        EXPECT_EQ(HLibrary::comboBoxIndexOf(&drinks, text), index);
}

TEST_F(Copy, PausesLastAtLeastTheirTime)
{
    support::writeFile(source, "1\n2\n3\n");
    QElapsedTimer timer;
    timer.start();
    HLibrary::hsleep(1);
    EXPECT_GE(timer.restart(), 1000);
    HLibrary::copy(source, target, u"0"_s, u"20"_s);
    EXPECT_GE(timer.restart(), 60);
    HLibrary::copy(source, target, 3U, 20U, 0U);
    EXPECT_GE(timer.restart(), 40);
}

TEST(Settings, ComeFromTheConfiguration)
{
    const support::Home home(
        "zentaro : { doc : { copyNumber = 1; }; prefiscaldoc : { copyNumber = 2; };"
        " fiscaldoc : { copyNumber = 3; }; receiptdoc : { copyNumber = 4; };"
        " invoicedoc : { copyNumber = 5; }; deliverydoc : { copyNumber = six; };"
        " bin : { path = \"/opt/till/\"; }; };");
    qputenv("HOME", home.path().toUtf8());
    testing::internal::CaptureStdout();
    QStringList numbers;
    for (const QString &type :
         u"order prefiscal fiscal RECEIPT Invoice delivery report Receiptdoc "_s.split(u' '))
        numbers += HLibrary::copyNumber(type);
    EXPECT_EQ(numbers.join(u','), u"1,2,3,4,5,six,,2,2"_s);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Error into HLibrary::copyNumber::documentPath: receiptdoc\n"
              "Error into HLibrary::copyNumber::documentPath: \n");
    EXPECT_EQ(HLibrary::pathWithBinaryFile(u"zentaro-print"_s), u"/opt/till//zentaro-print"_s);

    QDir::setCurrent(home.path());
    for (const QString &name : {u"CORE.1"_s, u"score"_s, u"core.d/x"_s, u".core"_s})
        support::writeFile(name, "");
    EXPECT_EQ(HLibrary::getCoreFile(), QString());
    for (const QString &name : {u"core.B"_s, u"core.a"_s, u"core.c"_s})
        support::writeFile(name, "");
    EXPECT_EQ(HLibrary::getCoreFile(), u"core.a"_s);
}
