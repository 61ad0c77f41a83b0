// SPDX-License-Identifier: MIT
#include "tools/preview/preview.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// What previews look like is in the transcripts.

namespace {

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
