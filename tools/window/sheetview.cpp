// SPDX-License-Identifier: MIT
#include "tools/window/paperpane.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>

namespace configtool {

SheetView::SheetView()
{
    setFocusPolicy(Qt::StrongFocus);
    measure();
}

void SheetView::show(preview::Sheet shown)
{
    sheet = std::move(shown);
    current = std::min(current, qsizetype(sheet.rows.size()) - 1);
    measure();
}

void SheetView::fade()
{
    sheet.changed.clear();
    update();
}

void SheetView::setPaper(const preview::PaperSize &size)
{
    paper = size;
    measure();
}

void SheetView::measure()
{
    painter.emplace(sheet, paper, preview::SheetPainter::Frame::Bare);
    resize(painter->size());
    update();
}

void SheetView::paintEvent(QPaintEvent *event)
{
    QPainter canvas(this);
    canvas.setClipRect(event->rect());
    painter->paint(canvas, {});
    const int height = 2 * painter->cellWidth();
    if (current >= 0)
        canvas.drawRect(0, int(current) * height, width() - 1, height - 1);
}

void SheetView::setCurrent(qsizetype row)
{
    current = row;
    update();
    const int height = 2 * painter->cellWidth();
    if (auto *const area = qobject_cast<QScrollArea *>(parentWidget()->parentWidget()))
        area->ensureVisible(0, int(row) * height, 0, 2 * height);
}

void SheetView::mousePressEvent(QMouseEvent *event)
{
    setCurrent(painter->rowAt(int(event->position().y())));
    if (current >= 0)
        chosen(current);
}

void SheetView::keyPressEvent(QKeyEvent *event)
{
    const qsizetype last = qsizetype(sheet.rows.size()) - 1;
    if (event->key() == Qt::Key_Down && current < last)
        setCurrent(current + 1);
    else if (event->key() == Qt::Key_Up && current > 0)
        setCurrent(current - 1);
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && current >= 0)
        chosen(current);
    else
        QWidget::keyPressEvent(event);
}

} // namespace configtool
