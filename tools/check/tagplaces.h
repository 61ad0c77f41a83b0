// SPDX-License-Identifier: MIT
#pragma once

#include "render/requestreader.h"
#include "tools/terminal.h"

#include <optional>

namespace requestcheck {

using tools::Range;

/// Where the tags of a request stand, and their attributes: follows the reading and keeps the
/// places of one tag. Columns count bytes in a request in UTF-8, characters in any other.
class TagPlaces : public requestreader::Observer
{
public:
    void taken(QStringView text, bool utf8) override;
    void stopped(requestreader::Stop why, const QString &fault) override;

    /// From the `<` of the tag that was read last, the `&` where it came from an entity, to the
    /// place behind the tag.
    Range tag() const { return {tagBegin, here}; }
    /// From the name of its attribute at `position`, declarations of name spaces not counted, to
    /// the place behind its value; the tag for an attribute that does not stand in it.
    Range attribute(int position) const;
    /// The character that was taken last; line 0 before the first.
    tools::Place last() const { return lastPlace; }

    /// What the text taken so far ends in, and what it ended in before its last character.
    enum class In { Text, Name, Blanks, Attribute, Quotes };
    In isIn() const { return in; }
    In wasIn() const { return before; }
    /// The last two characters that were taken.
    QStringView lastTwo() const { return QStringView(two, 2); }
    /// The beginning of the request, where its XML declaration stands.
    const QString &head() const { return beginning; }

    /// Why the reading ended early, if it did, and the reader's word for the fault.
    std::optional<requestreader::Stop> stop;
    QString fault;

private:
    void step(QChar c);

    In in = In::Text;
    In before = In::Text;
    QChar quote; // of the value that is being read
    QChar two[2];
    QString beginning;
    tools::Place here{1, 1};
    tools::Place lastPlace;
    tools::Place tagBegin;
    std::vector<Range> attributes;
    QString word; // the attribute that is being read, up to its value
};

} // namespace requestcheck
