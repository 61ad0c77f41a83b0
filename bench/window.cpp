// SPDX-License-Identifier: MIT
#include "tools/window/configeditor.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QListView>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

// What a person waits for in the window of `zentaro config edit`, without a display: from a key
// stroke to the ticket drawn anew, and for a configuration of 10,000 keys.

namespace {

/// Counts how often a widget is painted.
class Paints : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

double milliseconds(const QElapsedTimer &timer) { return double(timer.nsecsElapsed()) / 1e6; }

double keyStroke(const QString &path)
{
    constexpr int Strokes = 60;
    configtool::ConfigEditor editor;
    editor.open({path, u"cfg"_s});
    editor.show();
    auto *const tree = editor.findChild<QTreeWidget *>();
    const auto widths =
        tree->findItems(u"priceFieldWidth ="_s, Qt::MatchStartsWith | Qt::MatchRecursive);
    tree->setCurrentItem(widths.at(1)); // of the pre-bill, whose items have prices
    auto *const field = editor.findChild<QSpinBox *>();
    field->setFocus();
    QWidget *const paper = editor.findChild<QListView *>(u"paper"_s)->viewport();
    Paints paints;
    paper->installEventFilter(&paints);
    QTest::qWait(100); // all of the window is painted
    std::vector<double> times;
    for (int i = 0; i < Strokes; ++i) {
        QElapsedTimer timer;
        timer.start();
        paints.count = 0;
        QTest::keyClick(field, i % 2 == 0 ? Qt::Key_Up : Qt::Key_Down);
        while (paints.count == 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        times.push_back(milliseconds(timer));
    }
    std::ranges::nth_element(times, times.begin() + Strokes / 2);
    return times[Strokes / 2];
}

double opening(const QString &path)
{
    constexpr int Keys = 10'000;
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write("zentaro : {\n");
    for (int i = 0; i < Keys; ++i) {
        if (i % 100 == 0)
            file.write((i == 0 ? "" : "};\n") + QByteArray("group") + QByteArray::number(i)
                       + " : {\n");
        file.write("key" + QByteArray::number(i) + " = value;\n");
    }
    file.write("}; };\n");
    file.close();
    QElapsedTimer timer;
    timer.start();
    configtool::ConfigEditor editor;
    editor.open({path, u"cfg"_s});
    editor.show();
    QCoreApplication::processEvents();
    return milliseconds(timer);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString sample = folder.filePath(u"sample.conf"_s);
    QFile::copy(QStringLiteral(ZENTARO_SOURCE_DIR "/samples/zentaro-40.conf"), sample);
    std::printf("%-56s %9.1f ms\n", "window: a key stroke to the redrawn ticket (median)",
                keyStroke(sample));
    std::printf("%-56s %9.1f ms\n", "window: a configuration of 10,000 keys opens",
                opening(folder.filePath(u"large.conf"_s)));
}
