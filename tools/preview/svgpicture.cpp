// SPDX-License-Identifier: MIT
#include "tools/preview/picture.h"

#include <QXmlStreamWriter>

#include <array>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

// Of the monospaced fonts named below, in widths of a cell.
constexpr double FontSize = 1.66;
constexpr double Baseline = 1.5;

QString inMillimetres(int pixels, int dpi)
{
    constexpr double MillimetresOfInch = 25.4;
    return QString::number(pixels * MillimetresOfInch / dpi, 'f', 2) + "mm"_L1;
}

void write(QXmlStreamWriter &xml, const Box &box)
{
    xml.writeEmptyElement(u"rect"_s);
    xml.writeAttribute(u"x"_s, QString::number(box.place.x()));
    xml.writeAttribute(u"y"_s, QString::number(box.place.y()));
    xml.writeAttribute(u"width"_s, QString::number(box.place.width()));
    xml.writeAttribute(u"height"_s, QString::number(box.place.height()));
    xml.writeAttribute(u"fill"_s, colourOf(box.tone));
}

/// Characters that all fit their cells, or a single one that is squeezed into its own.
void writeText(QXmlStreamWriter &xml, const Run &run, size_t first, size_t count, bool squeezed)
{
    QStringList places;
    for (size_t i = first; i < first + count; ++i)
        places.append(QString::number(run.at.x() + int(i) * run.cellWidth));
    xml.writeStartElement(u"text"_s);
    xml.writeAttribute(u"x"_s, places.join(u' '));
    xml.writeAttribute(u"y"_s, QString::number(run.at.y() + Baseline * run.cellWidth));
    xml.writeAttribute(u"font-size"_s, QString::number(FontSize * run.cellWidth));
    xml.writeAttribute(u"fill"_s, colourOf(run.tone));
    if (squeezed) {
        xml.writeAttribute(u"textLength"_s, QString::number(run.cellWidth));
        xml.writeAttribute(u"lengthAdjust"_s, u"spacingAndGlyphs"_s);
    }
    xml.writeCharacters(textOf(CellsView(run.text).substr(first, count)));
    xml.writeEndElement();
}

void write(QXmlStreamWriter &xml, const Run &run)
{
    size_t first = 0;
    for (size_t i = 0; i <= run.text.size(); ++i) {
        const bool fits = i < run.text.size() && fillsOneColumn(drawable(run.text[i]));
        if (fits)
            continue;
        if (i > first)
            writeText(xml, run, first, i - first, false);
        if (i < run.text.size())
            writeText(xml, run, i, 1, true);
        first = i + 1;
    }
}

} // namespace

QLatin1StringView colourOf(Tone tone)
{
    constexpr std::array<QLatin1StringView, 8> colours = {"#e4e2dd"_L1, "#ffffff"_L1, "#b4b2ad"_L1,
                                                          "#fbdada"_L1, "#fff0b8"_L1, "#1b1b1b"_L1,
                                                          "#b00020"_L1, "#66645f"_L1};
    return colours.at(size_t(tone));
}

QByteArray svgOf(const Picture &picture)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    xml.writeStartElement(u"svg"_s);
    xml.writeDefaultNamespace(u"http://www.w3.org/2000/svg"_s);
    xml.writeAttribute(u"width"_s, inMillimetres(picture.size.width(), picture.dpi));
    xml.writeAttribute(u"height"_s, inMillimetres(picture.size.height(), picture.dpi));
    xml.writeAttribute(u"viewBox"_s,
                       u"0 0 %1 %2"_s.arg(picture.size.width()).arg(picture.size.height()));
    xml.writeAttribute(u"font-family"_s, u"'DejaVu Sans Mono','Liberation Mono',monospace"_s);
    xml.writeAttribute(u"shape-rendering"_s, u"crispEdges"_s); // no seams between the rows' boxes
    xml.writeAttribute(u"xml:space"_s, u"preserve"_s);
    for (const Box &box : picture.boxes)
        write(xml, box);
    for (const Run &run : picture.runs)
        write(xml, run);
    xml.writeEndElement();
    xml.writeEndDocument();
    return bytes;
}

} // namespace preview
