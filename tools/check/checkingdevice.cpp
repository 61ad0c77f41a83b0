// SPDX-License-Identifier: MIT
#include "tools/check/checkingdevice.h"

#include "render/vocabulary.h"
#include "tools/terminal.h"

#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>
#include <array>

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

CheckingDevice::~CheckingDevice() { stream.reset(); } // before the text that it writes to

void CheckingDevice::tell(Code code, const QString &text, const Range &at,
                          const QString &suggestion)
{
    findings.add(finding(code, text, at, suggestion));
}

Range CheckingDevice::placeOf(QLatin1StringView attribute) const
{
    return places.attribute(current.atts.index(attribute));
}

bool CheckingDevice::startElement(const QString &namespaceURI, const QString &localName,
                                  const QString &qName, const QXmlAttributes &atts)
{
    unlessGroup.reset(); // it groups this one
    if (root.begin.line == 0) {
        root = places.range();
        checkDeclaration();
    }
    open.push_back({qName, places.tag().line});
    current = {qName, atts, nullptr};
    hasPrinted = false;
    if (qName == element::method) {
        if (!startMethod(atts))
            return false;
    } else {
        checkElement();
    }
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
    static const QRegularExpression declaration(u"^<\\?xml[^?]*?encoding[^?\"']*[\"']([^\"']*)"_s);
    const QRegularExpressionMatch match = declaration.match(places.head());
    const QString name = match.captured(1);
    if (!match.hasMatch() || name.startsWith("utf"_L1, Qt::CaseInsensitive))
        return;
    requestCodec = QTextCodec::codecForName(name.toLatin1());
    if (requestCodec)
        return;
    const QStringView before = QStringView(places.head()).first(match.capturedStart(1));
    const qint64 column = before.size() - before.lastIndexOf(u'\n');
    const qint64 line = 1 + before.count(u'\n');
    tell("unknown-encoding",
         "nobody knows the encoding "_L1 + tools::excerpt(name)
             + ": the request is read as UTF-8"_L1,
         {{line, column}, {line, column + name.size()}});
}

bool CheckingDevice::startMethod(const QXmlAttributes &atts)
{
    const QString name = valueOf(atts, "name"_L1);
    const DocumentMethod *const chosen = documentMethod(name);
    if (!chosen) {
        std::vector<QString> names;
        names.reserve(documentMethods.size());
        for (const DocumentMethod &other : documentMethods)
            names.push_back(other.name);
        tell("unknown-method",
             (atts.index("name"_L1) < 0 ? u"`method` lacks the attribute `name`"_s
                                        : "unknown method "_L1 + tools::excerpt(name))
                 + ": the print run stops here"_L1,
             placeOf("name"_L1), tools::nearest(name, names));
        return false;
    }
    if (method >= 0)
        tell("second-method", u"a second `method`, which opens another section"_s, places.range());
    checkComplete();
    method = chosen - documentMethods.data();
    methodTag = places.range();
    seenRoles.clear();
    knownElements.clear();
    for (const ElementRow *const row : rowsOf(method))
        knownElements.push_back(row->element.toString());
    if (knownElements.empty())
        tell("prints-nothing", u'`' + name + "` prints nothing, whatever the request holds"_L1,
             methodTag);
    current.row = &methodElement();
    for (int i = 0; i < atts.count(); ++i) {
        if (fateOf(*current.row, atts, i, settings) == Fate::Unread)
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
    const bool isRoot = open.size() == 1;
    if (method >= 0) {
        current.row = elementRow(current.name, method);
        if (current.row)
            checkAttributes();
        else if (!knownElements.empty())
            checkUnknownElement();
        return;
    }
    const bool isKnown = !documentsWith(current.name).empty();
    if (isRoot && !isKnown)
        return;
    const std::array names = {element::method.toString()};
    const QString meant = isKnown ? QString() : tools::nearest(current.name, names);
    tellUnlessGroup(finding("before-method",
                            tools::excerpt(current.name)
                                + " stands before the `method` element and prints nothing"_L1,
                            places.range(), meant),
                    isKnown);
}

/// An element of a name that nobody knows, without attributes, may group others.
void CheckingDevice::tellUnlessGroup(const tools::Finding &told, bool isKnown)
{
    unlessGroup = told;
    if (isKnown || !told.suggestion.isEmpty() || hasPlainAttributes(current.atts))
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
    const QString near = tools::nearest(current.name, names);
    const size_t found = std::ranges::find(names, near) - names.begin();
    const bool isRead = found < knownElements.size();
    if (found == names.size() || (isRead && !documentsWith(current.name).empty()))
        return {}; // an element of another document is none that is misspelt
    return meant[found];
}

void CheckingDevice::checkUnknownElement()
{
    const Code code = "unknown-element";
    const bool isFull = findings.isFull(code.name); // then it is only counted
    const QString meant = isFull ? QString() : meantElement();
    const std::vector<QString> readers =
        isFull ? std::vector<QString>() : documentsWith(current.name);
    QString text = tools::excerpt(current.name) + " prints nothing in `"_L1 + currentMethod + u'`';
    if (!readers.empty())
        text += ": it is read in "_L1 + someOf(readers);
    else if (meant.isEmpty() && !isFull)
        text += ", which reads "_L1 + someOf({knownElements.rbegin(), knownElements.rend()});
    tellUnlessGroup(finding(code, text, places.range(), meant), !readers.empty());
}

void CheckingDevice::checkAttributes()
{
    const ElementRow &row = *current.row;
    if (current.name == element::printers)
        printer = placeOf("name"_L1);
    else if (current.name == element::headers && printer.begin.line == 0)
        tell("no-printer",
             u"`headers` prints the printer's name, which no `printers` before it gives"_s,
             places.range());
    if (row.rest == Rest::Ignored) {
        if (hasPlainAttributes(current.atts))
            tell("prints-nothing",
                 u'`' + current.name + "` prints nothing in `"_L1 + currentMethod
                     + "`, its payments included"_L1,
                 places.range());
        return;
    }
    if (row.isHidden(current.atts))
        tell("hidden-item", u"an item whose name begins with `=` is not printed"_s,
             placeOf("name"_L1));
    else
        seenRoles.insert(row.role);
    if (isOff(settings, row.onlyIf))
        tellSwitchedOff(row.onlyIf, current.name, places.range());
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
             places.range());
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
