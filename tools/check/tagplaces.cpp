// SPDX-License-Identifier: MIT
#include "tools/check/requestcheck.h"

namespace requestcheck {

using namespace Qt::StringLiterals;

void TagPlaces::taken(QStringView text, bool utf8)
{
    constexpr qsizetype HeadSize = 256; // characters
    if (beginning.size() < HeadSize)
        beginning += text.first(qMin(text.size(), HeadSize - beginning.size()));
    for (const QChar c : text) {
        before = in;
        two[0] = std::exchange(two[1], c);
        step(c);
        lastPlace = here;
        requestreader::pass(here.line, here.column, c, utf8);
    }
}

void TagPlaces::stopped(requestreader::Stop why, const QString &word)
{
    stop = why;
    fault = word;
}

/// Reads no more of XML than it needs: the reader, which is in step, has accepted the tag that it
/// announces, and in such a tag no `<` stands but the first. Whatever came before is forgotten.
void TagPlaces::step(QChar c)
{
    if (c == u'<' || (in == In::Text && c == u'&')) {
        tagBegin = here;
        attributes.clear();
        in = c == u'<' ? In::Name : In::Text;
    } else if (in == In::Quotes) {
        if (c != quote)
            return;
        in = In::Blanks;
        if (!attributes.empty() && attributes.back().end.line == 0)
            attributes.back().end = {here.line, here.column + 1};
    } else if (in == In::Attribute) {
        word += c;
        if (c != u'"' && c != u'\'')
            return;
        in = In::Quotes;
        quote = c;
        if (word.startsWith("xmlns"_L1) && ":= \t\r\n"_L1.contains(word[5]))
            attributes.pop_back(); // as the reader takes it out
    } else if (in != In::Text) {
        if (c == u' ' || c == u'\n' || c == u'\t' || c == u'\r')
            in = In::Blanks;
        else if (c == u'>' || c == u'/' || (two[0] == u'<' && (c == u'!' || c == u'?')))
            in = In::Text;
        else if (in == In::Blanks) {
            in = In::Attribute;
            word = c;
            attributes.push_back({here, {}});
        }
    }
}

Range TagPlaces::attribute(int position) const
{
    return position >= 0 && size_t(position) < attributes.size() ? attributes[size_t(position)]
                                                                 : tag();
}

} // namespace requestcheck
