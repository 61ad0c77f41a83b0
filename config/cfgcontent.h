// SPDX-License-Identifier: MIT
#pragma once

#include "config/keypath.h"

#include <QString>

#include <istream>
#include <string>
#include <vector>

namespace libconfig {

/// What a "cfg" file holds, in file order. A print run is answered from this list: to build the
/// toolkit's tree of the sample's 195 settings, and to take it down, takes 0.4 ms, a tenth of the
/// run.
class CfgContent
{
public:
    /// Reads the body of a group from the stream: true at the `}` that closes it, false at the end
    /// of the file. Groups without a member are left out.
    bool read(std::istream &stream);

    /// Whether the body had a setting or a group, also one that is left out.
    bool hasMember() const { return entries.front().hasMember; }

    /// The value of a setting, by the rules of `Config::lookup`: the key's first field names the
    /// first group of the body. Empty, non-null text when there is none.
    QString lookup(const KeyPath &path) const;

    /// Tells everything in file order: `beginGroup(name)`, `setting(name, value)`, `endGroup()`.
    template <typename BeginGroup, typename Setting, typename EndGroup>
    void visit(BeginGroup beginGroup, Setting setting, EndGroup endGroup) const
    {
        std::vector<quint32> ends; // of the groups that are open
        for (quint32 i = 1; i < entries.size(); ++i) {
            const Entry &entry = entries[i];
            if (entry.isGroup) {
                beginGroup(textOf(entry.name));
                ends.push_back(entry.end);
            } else {
                setting(textOf(entry.name), textOf(entry.value));
            }
            for (; !ends.empty() && ends.back() == i + 1; ends.pop_back())
                endGroup();
        }
    }

private:
    /// A piece of `text`, which is ISO 8859-1.
    struct Piece
    {
        quint32 begin = 0;
        quint32 size = 0;
    };

    struct Entry
    {
        Piece name;
        Piece value;     // of a setting
        quint32 end = 0; // the index behind it and all that it holds
        bool isGroup = false;
        bool hasMember = false;
    };

    Piece append(std::string_view piece);
    Piece appendWithoutQuotes(std::string_view piece);
    QLatin1StringView viewOf(Piece piece) const
    {
        return QLatin1StringView(text.data() + piece.begin, qsizetype(piece.size));
    }
    QString textOf(Piece piece) const { return viewOf(piece); }
    QString valueIn(quint32 group, QStringView setting) const;

    std::string text;
    std::vector<Entry> entries = std::vector<Entry>(1); // the body itself first
};

} // namespace libconfig
