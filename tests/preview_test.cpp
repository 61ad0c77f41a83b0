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
        const char *lines; ///< ` ` in both, `-` and `+` in one
    } rows[] = {
        {"abc", "abc", " a b c"},
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
        }
        return all;
    };
    for (const auto &row : rows) {
        std::string lines;
        for (const auto &pair : preview::comparedRows(rowsOf(row.before), rowsOf(row.after))) {
            lines += pair.before < 0 ? '+' : pair.after < 0 ? '-' : ' ';
            lines += pair.before < 0 ? row.after[pair.after] : row.before[pair.before];
        }
        EXPECT_EQ(lines, row.lines);
    }
    const preview::TerminalDrawing drawing(nullptr, 0);
    const QString coloured = preview::unifiedDifference(rowsOf("a"), rowsOf("b"), drawing, true);
    EXPECT_EQ(QString(coloured).remove(QRegularExpression(u"\x1b\\[[0-9]*m"_s)),
              preview::unifiedDifference(rowsOf("a"), rowsOf("b"), drawing, false));
    EXPECT_EQ(coloured.count(u'\x1b'), 6);
}

} // namespace
