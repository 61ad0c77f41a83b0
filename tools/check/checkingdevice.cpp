// SPDX-License-Identifier: MIT
#include "tools/check/checkingdevice.h"

#include "render/vocabulary.h"
#include "tools/terminal.h"

#include <QTextCodec>

#include <algorithm>

namespace requestcheck {

using namespace Qt::StringLiterals;

namespace {

/// The first names, and how many others there are.
QString someOf(const std::vector<QString> &names)
{
    constexpr qsizetype Most = 4;
    const QStringList all(names.begin(), names.end());
    const qsizetype rest = all.size() - Most;
    return u'`' + all.first(qMin(Most, all.size())).join("`, `"_L1) + u'`'
           + (rest > 0 ? " and %1 more"_L1.arg(QString::number(rest)) : QString());
}

/// Attributes of name spaces are read by others.
bool isOfNameSpace(QStringView attribute) { return attribute.contains(u':'); }

bool hasPlainAttributes(const QXmlAttributes &atts)
{
    for (int i = 0; i < atts.count(); ++i) {
        if (!isOfNameSpace(atts.qName(i)))
            return true;
    }
    return false;
}

} // namespace

CheckingDevice::CheckingDevice(const TagPlaces &places, tools::FindingStore &findings,
                               bool isConfigured)
    : CompanyPrinterDriver(u"/dev/null"_s)
    , places(places)
    , findings(findings)
    , isConfigured(isConfigured)
{
    stream = std::make_unique<QTextStream>(&paper);
}

bool CheckingDevice::startElement(const QString &namespaceURI, const QString &localName,
                                  const QString &qName, const QXmlAttributes &atts)
{
    unlessGroup.reset(); // it groups this one
    if (root.begin.line == 0) {
        root = places.tag();
        checkDeclaration();
    }
    open.push_back({qName, places.tag().begin.line});
    current = {qName, ownAttributes(atts), nullptr};
    hasPrinted = false;
    if (qName != element::method)
        checkElement();
    else if (!startMethod())
        return false;
    const bool accepted = CompanyPrinterDriver::startElement(namespaceURI, localName, qName, atts);
    checkDescription();
    paper.truncate(0);
    return accepted;
}

bool CheckingDevice::endElement(const QString &namespaceURI, const QString &localName,
                                const QString &qName)
{
    finish();
    open.pop_back();
    return CompanyPrinterDriver::endElement(namespaceURI, localName, qName);
}

void CheckingDevice::finish()
{
    if (unlessGroup)
        findings.add(*std::exchange(unlessGroup, std::nullopt));
}

bool CheckingDevice::skippedEntity(const QString &name)
{
    const tools::Place last = places.last(); // its semicolon
    tell("unknown-entity",
         tools::excerpt(u'&' + name + u';') + " is not declared, and prints nothing"_L1,
         {{last.line, last.column - name.size() - 1}, {last.line, last.column + 1}});
    return CompanyPrinterDriver::skippedEntity(name);
}

bool CheckingDevice::endDocument()
{
    if (method < 0)
        tell("no-method", u"the request has no `method` element, and prints nothing"_s, root);
    checkComplete();
    return CompanyPrinterDriver::endDocument();
}

/// The encoding that the XML declaration names.
void CheckingDevice::checkDeclaration()
{
    const QString &head = places.head();
    const std::u16string_view text(QStringView(head).utf16(), size_t(head.size()));
    const size_t quote = text.find_first_of(u"\"'", text.find(u"encoding"));
    if (!head.startsWith("<?xml"_L1) || quote == text.npos || quote > text.find(u"?>"))
        return;
    const QStringView before = QStringView(head).first(qsizetype(quote) + 1);
    const QString name = head.sliced(before.size(), qsizetype(text.find_first_of(u"\"'", quote + 1))
                                                        - before.size());
    if (name.startsWith("utf"_L1, Qt::CaseInsensitive))
        return;
    requestCodec = QTextCodec::codecForName(name.toLatin1());
    if (requestCodec)
        return;
    const qint64 column = before.size() - before.lastIndexOf(u'\n');
    const qint64 line = 1 + before.count(u'\n');
    tell("unknown-encoding",
         "nobody knows the encoding "_L1 + tools::excerpt(name)
             + ": the request is read as UTF-8"_L1,
         {{line, column}, {line, column + name.size()}});
}

bool CheckingDevice::startMethod()
{
    const QString name = valueOf(current.atts, "name"_L1);
    const DocumentMethod *const chosen = documentMethod(name);
    if (!chosen) {
        tell("unknown-method",
             (current.atts.index("name"_L1) < 0 ? u"`method` lacks the attribute `name`"_s
                                                : "unknown method "_L1 + tools::excerpt(name))
                 + ": the print run stops here"_L1,
             placeOf("name"_L1), methodNear(name));
        return false;
    }
    if (method >= 0)
        tell("second-method", u"a second `method`, which opens another section"_s, places.tag());
    checkComplete();
    method = chosen - documentMethods.data();
    methodTag = places.tag();
    seenRoles.clear();
    knownElements.clear();
    for (const ElementRow *const row : rowsOf(method))
        knownElements.push_back(row->element.toString());
    if (knownElements.empty())
        tell("prints-nothing", u'`' + name + "` prints nothing, whatever the request holds"_L1,
             methodTag);
    current.row = &methodElement();
    for (int i = 0; i < current.atts.count(); ++i) {
        if (fateOf(*current.row, current.atts, i, settings) == Fate::Unread)
            tellUnread(i);
    }
    return true;
}

/// Whether the document that ends has what it is for.
void CheckingDevice::checkComplete()
{
    const auto check = [this](Role role, Code code, QLatin1StringView what) {
        const QString name = method < 0 ? QString() : elementWith(role, method);
        if (!name.isEmpty() && !seenRoles.contains(role))
            tell(code, what + ": no `"_L1 + name + "` is printed"_L1, methodTag);
    };
    check(Role::Item, "no-items", "the document has no items"_L1);
    check(Role::Total, "no-total", "the document has no total"_L1);
}

void CheckingDevice::checkElement()
{
    if (method >= 0) {
        current.row = elementRow(current.name, method);
        if (current.row)
            checkAttributes();
        else if (!knownElements.empty())
            checkUnknownElement();
        return;
    }
    const bool isKnown = isElement(current.name);
    if (open.size() == 1 && !isKnown) // the root
        return;
    const QString meant = element::method.toString();
    tellUnlessGroup(finding(
        "before-method",
        tools::excerpt(current.name) + " stands before the `method` element and prints nothing"_L1,
        places.tag(), isKnown ? QString() : tools::nearest(current.name, {&meant, 1})));
}

/// An element of a name that nobody knows, without attributes, may group others.
void CheckingDevice::tellUnlessGroup(const tools::Finding &told)
{
    unlessGroup = told;
    if (!told.suggestion.isEmpty() || hasPlainAttributes(current.atts) || isElement(current.name))
        finish();
}

/// What a name that the document does not read stands for: the nearest that it reads, or what has
/// the same role in it. Empty where nothing is near.
QString CheckingDevice::meantElement() const
{
    std::vector<QString> names = knownElements;
    std::vector<QString> meant = knownElements;
    for (const ElementRow &row : elementRows()) {
        const QString same = elementWith(row.role, method);
        if (row.role != Role::Other && !same.isEmpty()) {
            names.push_back(row.element.toString());
            meant.push_back(same);
        }
    }
    const size_t found =
        std::ranges::find(names, tools::nearest(current.name, names)) - names.begin();
    const bool isRead = found < knownElements.size();
    if (found == names.size() || (isRead && isElement(current.name)))
        return {}; // an element of another document is none that is misspelt
    return meant[found];
}

void CheckingDevice::checkUnknownElement()
{
    const Code code = "unknown-element";
    QString meant;
    QString text;
    if (!findings.isFull(code.name)) { // else it is only counted
        meant = meantElement();
        text = tools::excerpt(current.name) + " prints nothing in `"_L1 + currentMethod + u'`';
        if (isElement(current.name))
            text += ": it is read in "_L1 + someOf(documentsWith(current.name));
        else if (meant.isEmpty())
            text += ", which reads "_L1 + someOf({knownElements.rbegin(), knownElements.rend()});
    }
    tellUnlessGroup(finding(code, text, places.tag(), meant));
}

void CheckingDevice::checkAttributes()
{
    const ElementRow &row = *current.row;
    if (current.name == element::printers)
        printer = placeOf("name"_L1);
    else if (current.name == element::headers && printer.begin.line == 0)
        tell("no-printer",
             u"`headers` prints the printer's name, which no `printers` before it gives"_s,
             places.tag());
    if (row.rest == Rest::Ignored) {
        if (hasPlainAttributes(current.atts))
            tell("prints-nothing",
                 u'`' + current.name + "` prints nothing in `"_L1 + currentMethod
                     + "`, its payments included"_L1,
                 places.tag());
        return;
    }
    if (row.isHidden(current.atts))
        tell("hidden-item", u"an item whose name begins with `=` is not printed"_s,
             placeOf("name"_L1));
    else
        seenRoles.insert(row.role);
    if (isOff(settings, row.onlyIf))
        tellSwitchedOff(row.onlyIf, current.name, places.tag());
    for (int i = 0; i < current.atts.count(); ++i)
        checkAttribute(i);
    checkMissing();
    if (row.rest == Rest::Triples)
        checkTriples();
}

void CheckingDevice::checkAttribute(int position)
{
    const ElementRow &row = *current.row;
    const QString name = current.atts.qName(position);
    const Fate fate = fateOf(row, current.atts, position, settings);
    const AttributeUse *const use = row.find(name);
    if (fate == Fate::Unread)
        tellUnread(position);
    else if (fate == Fate::Printed && !row.isHidden(current.atts))
        checkValue(position);
    else if (fate == Fate::SwitchedOff && use && !isOff(settings, row.onlyIf)
             && !current.atts.value(position).isEmpty())
        tellSwitchedOff(use->onlyIf, name, places.attribute(position));
}

void CheckingDevice::tellUnread(int position)
{
    const QString name = current.atts.qName(position);
    const Range at = places.attribute(position);
    if (current.row->find(name)) {
        tell("duplicate-attribute",
             "a second `"_L1 + name + "` in `"_L1 + current.name + "` is not read"_L1, at);
        return;
    }
    if (isOfNameSpace(name))
        return;
    const Code code = "unknown-attribute";
    if (findings.isFull(code.name)) {
        tell(code, {}, {});
        return;
    }
    std::vector<QString> names;
    for (const AttributeUse &use : current.row->attributes)
        names.push_back(use.name);
    const QString meant = tools::nearest(name, names);
    QString text = u'`' + current.name + "` does not read "_L1 + tools::excerpt(name);
    if (meant.isEmpty())
        text += names.empty() ? ", nor any other"_L1 : QString(", but "_L1 + someOf(names));
    tell(code, text, at, meant);
}

/// Once for a switch.
void CheckingDevice::tellSwitchedOff(bool DocumentSettings::*aSwitch, const QString &what,
                                     const Range &at)
{
    if (!isConfigured)
        return;
    const QString key = docPath + keyWordOf(aSwitch);
    if (toldSwitches.insert(key).second)
        tell("switch-off", u'`' + key + "` is off: `"_L1 + what + "` is not printed"_L1, at);
}

void CheckingDevice::checkMissing()
{
    const ElementRow &row = *current.row;
    if (isOff(settings, row.onlyIf) || row.isHidden(current.atts))
        return;
    for (const AttributeUse &use : row.attributes) {
        if (isOff(settings, use.onlyIf) || use.need != Need::Expected
            || current.atts.index(use.name) >= 0)
            continue;
        const auto instead = use.column == Column::Sign ? "`-`"_L1 : "empty"_L1;
        tell("missing-attribute",
             u'`' + current.name + "` lacks `"_L1 + use.name + "`, which prints "_L1 + instead,
             places.tag());
    }
}

/// The documents stand by position behind the named attributes, which have to come first.
void CheckingDevice::checkTriples()
{
    const auto named = current.row->attributes;
    const int first = int(named.size());
    for (int i = 0; i < first; ++i) {
        const int position = current.atts.index(named[size_t(i)].name);
        if (position >= first || (position < 0 && current.atts.count() > first))
            tell("attribute-order",
                 u'`' + named[size_t(i)].name
                     + "` has to stand before the documents, which are read by position"_L1,
                 places.attribute(position));
    }
    constexpr int PerDocument = 3;
    const int missing = (PerDocument - (current.atts.count() - first) % PerDocument) % PerDocument;
    if (current.atts.count() > first && missing > 0)
        tell("missing-attribute",
             "the last document of `"_L1 + current.name + "` lacks "_L1 + QString::number(missing)
                 + " of its 3 attributes"_L1,
             places.attribute(current.atts.count() - 1));
}

} // namespace requestcheck
