// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/summary_table.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <iterator>
#include <utility>

#include "ui/look/dress.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr double HeadHeight = 15;
constexpr double LineHeight = 21;
constexpr double Place = 20;
constexpr double Sign = 24;

struct Column {
    const char* Head;
    int ClanFigures::*Figure;
};

constexpr Column Columns[] = {
    {"score", &ClanFigures::Score},
    {"amoebas", &ClanFigures::Amoebas},
    {"genes", &ClanFigures::Genes},
    {"BP", &ClanFigures::BP},
};
constexpr int ColumnCount = static_cast<int>(std::size(Columns));

double ColumnWidth(double wide) {
    return std::clamp(wide * 0.12, 38.0, 58.0);
}

}  // namespace

SummaryTable::SummaryTable(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("summarytab"));
    setAccessibleName(QStringLiteral("Who came where"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void SummaryTable::Show(std::vector<SummaryRow> rows) {
    rows_ = std::move(rows);
    updateGeometry();
    update();
}

QSize SummaryTable::sizeHint() const {
    return {Px(300), Px(HeadHeight + LineHeight * static_cast<double>(rows_.size()))};
}

QRectF SummaryTable::LineOf(int place) const {
    return {0, HeadHeight + LineHeight * (place - 1), UsualWidth(*this), LineHeight};
}

double SummaryTable::FiguresLeft() const {
    return UsualWidth(*this) - ColumnCount * ColumnWidth(UsualWidth(*this));
}

std::vector<int> SummaryTable::PartsOf(int part) const {
    std::vector<int> parts;
    for (int place = 1; part == 0 && place <= static_cast<int>(rows_.size()); ++place) {
        parts.push_back(place);
    }
    return parts;
}

HeardPart SummaryTable::Hear(int part) const {
    if (part < 1 || part > static_cast<int>(rows_.size())) {
        return {};
    }
    const SummaryRow& row = rows_[static_cast<std::size_t>(part - 1)];
    const QString words = QStringLiteral("%1. %2, %3, score %4, %5 %6, %7 %8, %9 BP")
                              .arg(part)
                              .arg(row.Name, row.Kind)
                              .arg(row.Figures.Score)
                              .arg(row.Figures.Amoebas)
                              .arg(row.Figures.Amoebas == 1 ? QStringLiteral("amoeba") : QStringLiteral("amoebas"))
                              .arg(row.Figures.Genes)
                              .arg(row.Figures.Genes == 1 ? QStringLiteral("gene") : QStringLiteral("genes"))
                              .arg(row.Figures.BP);
    return {words, QAccessible::StaticText, InPixels(LineOf(part))};
}

int SummaryTable::PartAt(QPoint point) const {
    for (const int part : PartsOf(0)) {
        if (InPixels(LineOf(part)).contains(point)) {
            return part;
        }
    }
    return 0;
}

void SummaryTable::DrawHeads(QPainter& painter) const {
    const double column = ColumnWidth(UsualWidth(*this));
    constexpr double letters = 10;
    const double widest = QFontMetricsF(DrawnFont(letters)).horizontalAdvance(QStringLiteral("amoebas"));
    painter.setFont(DrawnFont(letters * std::min(1.0, (column - 7) / widest)));
    painter.setPen(Shade(Tone::Faint));
    double left = FiguresLeft();
    for (const Column& one : Columns) {
        painter.drawText(QRectF(left, 0, column, HeadHeight), Qt::AlignRight | Qt::AlignVCenter,
                         QString::fromLatin1(one.Head));
        left += column;
    }
}

// Who a clan is comes behind its name where there is room.
void SummaryTable::DrawName(QPainter& painter, const SummaryRow& row, const QRectF& room) const {
    const QFont letters = DrawnFont(12.5, true);
    const QString name = QFontMetricsF(letters).elidedText(row.Name, Qt::ElideRight, room.width());
    painter.setFont(letters);
    painter.setPen(Shade(Tone::Ink));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, name);
    const double after = QFontMetricsF(letters).horizontalAdvance(name) + 6;
    painter.setFont(DrawnFont(10.5));
    painter.setPen(Shade(Tone::Faint));
    painter.drawText(
        room.adjusted(after, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
        QFontMetricsF(painter.font()).elidedText(row.Kind, Qt::ElideRight, std::max(room.width() - after, 0.0)));
}

void SummaryTable::DrawRow(QPainter& painter, int place) const {
    const SummaryRow& row = rows_[static_cast<std::size_t>(place - 1)];
    const QRectF line = LineOf(place);
    painter.setFont(DrawnFont(12.5, place == 1));
    painter.setPen(Shade(Tone::Faint));
    painter.drawText(QRectF(line.left(), line.top(), Place, line.height()), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("%1.").arg(place));
    DrawClanBadge(painter, row.Clan, QPointF(Place + Sign / 2 - 3, line.center().y()), 8.5);
    DrawName(painter, row, QRectF(Place + Sign, line.top(), FiguresLeft() - Place - Sign, line.height()));
    const double column = ColumnWidth(UsualWidth(*this));
    double left = FiguresLeft();
    painter.setPen(Shade(Tone::Ink));
    for (const Column& one : Columns) {
        painter.setFont(DrawnFont(13, one.Figure == &ClanFigures::Score));
        painter.drawText(QRectF(left, line.top(), column, line.height()), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(row.Figures.*one.Figure));
        left += column;
    }
}

void SummaryTable::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintUsual(painter);
    DrawHeads(painter);
    for (int place = 1; place <= static_cast<int>(rows_.size()); ++place) {
        DrawRow(painter, place);
    }
}

}  // namespace plasmos
