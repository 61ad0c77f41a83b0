// SPDX-License-Identifier: MIT
#include "tools/check/tagplaces.h"

#include <utility>

namespace requestcheck {

using namespace Qt::StringLiterals;

namespace {

bool isBlank(QChar c) { return c == u' ' || c == u'\n' || c == u'\t' || c == u'\r'; }

} // namespace

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
        tagPlace = here;
        attributes.clear();
        in = c == u'<' ? In::TagStart : In::Text;
        return;
    }
    switch (in) {
    case In::Text:
        break;
    case In::TagStart:
        in = c == u'!' || c == u'?' || c == u'/' ? In::Text : In::Tag;
        break;
    case In::Tag:
    case In::Blanks:
        if (isBlank(c))
            in = In::Blanks;
        else if (c == u'>' || c == u'/')
            in = In::Text;
        else if (in == In::Blanks) {
            in = In::Name;
            name = c;
            attributes.push_back({here, {}});
        }
        break;
    case In::Name:
        if (c != u'=' && !isBlank(c)) {
            name += c;
            break;
        }
        in = In::Value;                                         // which may be some blanks away
        if (name == "xmlns"_L1 || name.startsWith("xmlns:"_L1)) // the reader takes these out
            attributes.pop_back();
        break;
    case In::Value:
        if (c == u'"' || c == u'\'') {
            in = In::Quotes;
            quote = c;
        }
        break;
    case In::Quotes:
        if (c == quote) {
            in = In::Blanks;
            if (!attributes.empty() && attributes.back().end.line == 0)
                attributes.back().end = {here.line, here.column + 1};
        }
        break;
    }
}

Range TagPlaces::attribute(int position) const
{
    return position >= 0 && size_t(position) < attributes.size() ? attributes[size_t(position)]
                                                                 : range();
}

} // namespace requestcheck
