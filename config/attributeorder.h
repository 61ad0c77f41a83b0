// SPDX-License-Identifier: MIT
#pragma once

#include <QDomElement>
#include <QString>

#include <unordered_map>
#include <vector>

namespace libconfig {

/// The order in which the attributes of a tree's elements came. The toolkit keeps them in a hash
/// and lists them differently in every run.
class AttributeOrder
{
public:
    struct Attribute
    {
        QString name;
        QString value;
    };

    /// Notes that the attribute `name` of `element` came after those noted before. One that is
    /// noted twice keeps its first place.
    void append(const QDomElement &element, const QString &name);
    /// The attributes that `element` has, in the order noted; those never noted follow by name.
    std::vector<Attribute> attributesOf(const QDomElement &element) const;
    void clear() { names.clear(); }

private:
    std::unordered_map<const void *, std::vector<QString>> names; // by identity of the element
};

} // namespace libconfig
