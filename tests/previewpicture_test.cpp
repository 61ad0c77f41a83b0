// SPDX-License-Identifier: MIT
#include "tests/support.h"
#include "tools/preview/preview.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using support::Home;
using support::Outcome;
using support::sourceDir;

namespace {

/// Runs the command in a process without a display, with the configuration for 40 columns.
Outcome draw(const QStringList &words, const QStringList &variables = {})
{
    const Home home(support::readFile(sourceDir() + u"/samples/zentaro-40.conf"_s));
    QStringList all{u"preview"_s};
    for (QString word : words)
        all += word.replace(u'@', sourceDir());
    return support::zentaro(all, home,
                            QStringList{u"DISPLAY="_s, u"WAYLAND_DISPLAY="_s} + variables);
}

/// The mean grey of each cell, whose size is `cell`, from the upper left corner on, `shift` cells
/// to the left.
std::vector<double> greyOfCells(const QImage &image, QSize cell, int shift = 0)
{
    const QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
    std::vector<double> cells;
    for (int top = 0; top + cell.height() <= grey.height(); top += cell.height()) {
        for (int left = 0; left + cell.width() <= grey.width(); left += cell.width()) {
            double sum = 0;
            for (int y = top; y < top + cell.height(); ++y) {
                for (int x = left; x < left + cell.width(); ++x)
                    sum += qGray(grey.pixel((x + shift * cell.width()) % grey.width(), y));
            }
            cells.push_back(sum / (cell.width() * cell.height()));
        }
    }
    return cells;
}

/// The cells whose grey differs by more than font libraries differ among each other.
int differing(const std::vector<double> &a, const std::vector<double> &b)
{
    constexpr double Tolerance = 12; // of 255: a letter makes a cell 30 to 90 darker
    int count = 0;
    for (size_t i = 0; i < std::min(a.size(), b.size()); ++i)
        count += std::abs(a[i] - b[i]) > Tolerance ? 1 : 0;
    return count;
}

TEST(Picture, IsItsReferenceCellByCell)
{
    constexpr QSize Cell(7, 14); // of 40 columns on 80 mm at 100 dots per inch
    const struct
    {
        QString name;
        QStringList words;
        int exitStatus;
    } goldens[] = {
        {u"receipt.png"_s, {u"--annotate"_s, u"@/samples/printFullOrderReceipt.xml"_s}, 0},
        {u"papers.png"_s,
         {u"--columns"_s, u"40"_s, u"@/samples/printFullOrderFiscal.xml"_s,
          u"@/tests/golden/odd/columns-wider-than-paper.prn"_s},
         0},
        {u"changes.png"_s,
         {u"--columns"_s, u"40"_s, u"--against"_s, u"@/samples/zentaro-32.conf"_s,
          u"@/tests/golden/preview/sold.xml"_s},
         1},
    };
    const support::Folder folder;
    for (const auto &golden : goldens) {
        const QString drawn = folder.path(golden.name);
        const Outcome outcome =
            draw(golden.words + QStringList{u"--dpi"_s, u"100"_s, u"-o"_s, drawn});
        ASSERT_EQ(outcome.exitStatus, golden.exitStatus);
        EXPECT_EQ(outcome.errors, "");
        const QString reference = sourceDir() + u"/tests/golden/preview/"_s + golden.name;
        support::updateReference(reference, support::readFile(drawn));
        const QImage expected(reference);
        const QImage image(drawn);
        ASSERT_FALSE(expected.isNull());
        ASSERT_EQ(image.size(), expected.size()) << golden.name.toStdString();
        const std::vector<double> cells = greyOfCells(expected, Cell);
        EXPECT_EQ(differing(greyOfCells(image, Cell), cells), 0) << golden.name.toStdString();
        EXPECT_GT(differing(greyOfCells(image, Cell, 1), cells), 30) << "too tolerant";
    }
}

/// Text, not outlines of letters; each in its cell.
TEST(SvgPicture, ShowsWhatThePixelsShow)
{
    constexpr int Reduction = 8;
    constexpr QSize Cell(72 / Reduction, 144 / Reduction); // of 40 columns, 40 dots to a millimetre
    const support::Folder folder;
    const QString sample = u"@/tests/golden/preview/sold.xml"_s;
    for (const QString &name : {u"t.png"_s, u"t.svg"_s}) {
        const QStringList words{sample, u"--dpi"_s, u"1016"_s, u"-o"_s, folder.path(name)};
        ASSERT_EQ(draw(words).exitStatus, 0);
    }
    const QByteArray svg = support::readFile(folder.path(u"t.svg"_s));
    EXPECT_TRUE(svg.contains(">Caff\xC3\xA8....................</text>"));
    EXPECT_TRUE(svg.contains("<title>sold.xml</title>"));
    EXPECT_TRUE(svg.contains("\"DejaVu Sans Mono, monospace\""));

    qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 0;
    const QGuiApplication application(count, nullptr);
    const QImage large(folder.path(u"t.png"_s));
    const QImage expected =
        large.convertToFormat(QImage::Format_RGB32)
            .scaled(large.size() / Reduction, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QImage image(expected.size(), QImage::Format_RGB32);
    QPainter painter(&image);
    QSvgRenderer(QByteArray(svg).replace(", monospace", "")).render(&painter);
    painter.end();
    const std::vector<double> cells = greyOfCells(expected, Cell);
    EXPECT_EQ(differing(greyOfCells(image, Cell), cells), 0);
    EXPECT_GT(differing(greyOfCells(image, Cell, 1), cells), 30) << "too tolerant";
}

TEST(SvgPicture, NamesWhatWouldNotBeSeen)
{
    const support::Folder folder;
    support::writeFile(folder.path(u"p"_s), "\nj\n\"e\xCC\x81\xE2\x80\xAE\"@\nJ\n");
    ASSERT_EQ(draw({folder.path(u"p"_s), u"-o"_s, folder.path(u"p.svg"_s)}).exitStatus, 0);
    const QByteArray svg = support::readFile(folder.path(u"p.svg"_s));
    EXPECT_TRUE(svg.contains(">U+0301</text>") && svg.contains(">U+202E</text>"));
}

TEST(PdfPicture, HasAPageOfThePaperForEachDocument)
{
    const support::Folder folder;
    const QString name = folder.path(u"TICKETS.PDF"_s);
    ASSERT_EQ(draw({u"@/samples/printSold.xml"_s, u"@/samples/printReport.xml"_s, u"-o"_s, name})
                  .exitStatus,
              0);
    const QString pdf = QString::fromLatin1(support::readFile(name));
    EXPECT_TRUE(pdf.startsWith(u"%PDF-"_s));
    static const QRegularExpression box(u"/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]"_s);
    int pages = 0;
    for (auto matches = box.globalMatch(pdf); matches.hasNext(); ++pages)
        EXPECT_NEAR(matches.next().captured(1).toDouble(), 80 / 25.4 * 72, 0.5);
    EXPECT_EQ(pages, 2);
}

TEST(Difference, KeepsAsManyRowsAsThereCanBe)
{
    const struct
    {
        const char *before;
        const char *after;
        const char *lines; ///< ` ` in both, `-` and `+` in one; none where nothing differs
    } rows[] = {
        {"abc", "abc", ""},
        {"abc", "", "-a-b-c"},
        {"", "ab", "+a+b"},
        {"abc", "axc", " a-b+x c"},
        {"abcd", "acd", " a-b c d"},
        {"acd", "abcd", " a+b c d"},
        {"xabcy", "zabc", "-x+z a b c-y"},
        {"abcabba", "cbabac", "-a-b c-a b+a b a+c"},
    };
    const auto rowsOf = [](const char *letters) {
        std::vector<preview::Row> all;
        for (const char *letter = letters; *letter != 0; ++letter) {
            all.emplace_back();
            all.back().text = preview::Cells(1, char32_t(*letter));
            all.back().width = 1;
        }
        return all;
    };
    const auto difference = [&rowsOf](const char *first, const char *second, bool inColours) {
        std::vector<preview::Row> before = rowsOf(first);
        std::vector<preview::Row> after = rowsOf(second);
        preview::markChanges(before, after);
        const preview::TerminalDrawing drawing(nullptr, 0);
        return preview::unifiedDifference(before, after, drawing, inColours);
    };
    const QRegularExpression frame(u"@@.*\n|   │|│\n"_s);
    for (const auto &row : rows)
        EXPECT_EQ(difference(row.before, row.after, false).remove(frame).toStdString(), row.lines);
    const QString coloured = difference("a", "b", true);
    EXPECT_EQ(QString(coloured).remove(QRegularExpression(u"\x1b\\[[0-9]*m"_s)),
              difference("a", "b", false));
    EXPECT_EQ(coloured.count(u'\x1b'), 6);
}

} // namespace
