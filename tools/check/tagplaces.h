// SPDX-License-Identifier: MIT
#pragma once

#include "render/requestreader.h"
#include "tools/finding.h"

#include <QString>

#include <optional>
#include <vector>

namespace requestcheck {

/// Where the tags of a request stand, and their attributes: follows the reading and keeps the
/// places of one tag. Columns count bytes in a request in UTF-8, characters in any other.
class TagPlaces : public requestreader::Observer
{
public:
    void taken(QStringView text, bool utf8) override;
    void stopped(requestreader::Stop why, const QString &fault) override;

    /// The `<` of the tag that was read last; the `&` where it came from an entity.
    tools::Place tag() const { return tagPlace; }
    /// The name of its attribute at `position`, declarations of name spaces not counted; the tag
    /// for an attribute that does not stand in it.
    tools::Place attribute(int position) const;
    /// The character that was taken last.
    tools::Place last() const { return lastPlace; }

    bool isEmpty() const { return lastPlace.line == 0; }
    /// Why the reading ended early, if it did, and the reader's word for the fault.
    std::optional<requestreader::Stop> stop;
    QString fault;

private:
    enum class In { Text, TagStart, Tag, Blanks, Name, Value, SingleQuotes, DoubleQuotes };

    void step(QChar c);
    void startName(QChar c);
    void endName();

    In in = In::Text;
    tools::Place here{1, 1};
    tools::Place lastPlace;
    tools::Place tagPlace;
    std::vector<tools::Place> attributes;
    QString name; // of the attribute that is being read
};

} // namespace requestcheck
