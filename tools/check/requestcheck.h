// SPDX-License-Identifier: MIT
#pragma once

#include "render/companyprinterdriver.h"
#include "render/requestreader.h"
#include "tools/check/elementtable.h"
#include "tools/terminal.h"

#include <optional>
#include <set>
#include <string_view>

class QIODevice;
class QTextCodec;

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

// What the check finds, each under a name that stays.
/// What stops the print run, or reaches the printer as another command.
inline constexpr std::string_view errorCodes[] = {"xml",           "limit",
                                                  "no-method",     "unknown-method",
                                                  "line-feed",     "control-character",
                                                  "end-mark",      "fiscal-quote",
                                                  "fiscal-number", "fiscal-department"};
/// What is lost, or stands elsewhere than it should.
inline constexpr std::string_view warningCodes[] = {
    "before-method",       "second-method",     "no-items",          "no-total",
    "no-printer",          "unknown-element",   "unknown-attribute", "unknown-entity",
    "duplicate-attribute", "missing-attribute", "attribute-order",   "address-part",
    "cut-description",     "variant-quantity",  "untranslated-type", "line-too-long",
    "not-centred",         "character-width",   "not-in-encoding",   "undecodable",
    "no-character",        "unknown-encoding",  "mistaken-encoding"};
/// What the configuration or the document method leaves away.
inline constexpr std::string_view noteCodes[] = {"no-configuration", "switch-off", "prints-nothing",
                                                 "hidden-item"};

/// By severity.
inline constexpr std::span<const std::string_view> codes[] = {noteCodes, warningCodes, errorCodes};

/// One of them; any other name does not compile.
struct Code
{
    consteval Code(const char *word)
        : name(word)
    {
        int row = 0; // past the last one is no part of a constant
        while (std::ranges::count(codes[row], word) == 0)
            ++row;
        severity = tools::Severity(row);
    }

    QLatin1StringView name;
    tools::Severity severity{};
};

/// A finding whose text asks whether the suggestion was meant, unless that is empty.
inline tools::Finding finding(Code code, const QString &text, const tools::Range &at = {},
                              const QString &suggestion = {})
{
    return {code.severity, code.name, text + tools::didYouMean(suggestion), at, -1, suggestion};
}

/// What is wrong with a request, in the order of its text; in constant memory. The request is read
/// and printed as by the print run, with the process's configuration and translation, but nothing
/// is written. `isConfigured`: whether there is a configuration.
std::vector<tools::Finding> check(QIODevice &request, bool isConfigured);

/// The receipt printer once more, given the same elements: what it would write is looked at line by
/// line and thrown away, and each element is held against the table of elements.
class CheckingDevice : public CompanyPrinterDriver
{
public:
    /// Without a configuration, what switches leave away is not told: they are all off.
    explicit CheckingDevice(bool isConfigured);
    ~CheckingDevice() override { stream.reset(); } // before the text that it writes to

    /// When the request has been read.
    std::vector<tools::Finding> takeFindings();
    TagPlaces places; ///< follows the same reading

    bool startElement(const QString &, const QString &, const QString &qName,
                      const QXmlAttributes &attributes) override;
    bool endElement(const QString &, const QString &, const QString &) override;
    bool skippedEntity(const QString &name) override;
    bool endDocument() override;

    void println(unsigned int indent, const QString &text) override;
    using CompanyPrinterDriver::println;
    void printPrinterInfo() override;
    void printRowFiscal(const QString &department, const QString &quantity,
                        const QString &description, const QString &price) override;
    using CompanyPrinterDriver::printRowFiscal;

private:
    QString faultToTell() const;
    void tellPending();
    void tell(Code code, const QString &text, const Range &at, const QString &suggestion = {})
    {
        findings.add(finding(code, text, at, suggestion));
    }
    /// About the element.
    void tell(Code code, const QString &text) { tell(code, text, places.tag()); }
    /// `%1` in the text is the attribute's name.
    template <typename... Others>
    void tellValue(Code code, int position, const QString &text, const Others &...others)
    {
        tell(code, text.arg(tools::excerpt(atts.qName(position)), others...),
             places.attribute(position));
    }
    Range placeOf(QLatin1StringView attribute) const
    {
        return places.attribute(atts.index(attribute));
    }

    void checkDeclaration();
    bool startMethod();
    void checkElement();
    void checkUnknownElement();
    void tellUnlessGroup(Code code, const QString &text, const QString &meant);
    QString meantElement() const;
    void checkComplete();
    // The attributes against the table.
    void checkAttributes();
    void tellUnread(int position);
    void tellSwitchedOff(bool DocumentSettings::*aSwitch, const QString &what, const Range &at);
    void checkMissing();
    void checkTriples();
    // The value of a printed attribute.
    void checkValue(int position, const AttributeUse *use);
    void checkEncoding(int position);
    void checkMeaning(int position, const AttributeUse &use);
    // The paper.
    void checkLine(const QString &text, qsizetype pad);
    int longestIn(const QString &text) const;
    Range placeIn(const QString &text) const;
    void tellTooLong(const QString &text);
    void checkDescription();
    void tellCut(QLatin1StringView attribute, const QString &lost);

    // The element that is being printed.
    QString elementName;
    QXmlAttributes atts;
    const ElementRow *row = nullptr; // null: the method does not react to it

    tools::FindingStore findings;
    const bool isConfigured;
    QTextCodec *requestCodec = nullptr; // of eight bits, which the request names; null: another
    QString paper;                      // what was written since it was last looked at
    std::optional<QString> lastLine;    // printed for the element, without its frame
    bool isPrinterName = false;
    std::vector<std::pair<QString, qint64>> open; // elements and their lines, the innermost last
    std::optional<tools::Finding> unlessGroup;    // about the innermost, unless it groups others
    Range root;
    Range printer;                  // where its name stands; line 0 before it
    Range methodTag;                // of the chosen one
    qsizetype method = -1;          // its place in documentMethods
    std::set<Role> seenRoles;       // in its document
    QStringList knownElements;      // of the method
    std::set<QString> toldSwitches; // by their keys
};

} // namespace requestcheck
