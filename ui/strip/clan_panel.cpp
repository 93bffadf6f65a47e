// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/clan_panel.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "model/game_state.h"
#include "ui/look/card.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/strip/gene_chips.h"
#include "ui/strip/rising_words.h"

namespace plasmos {

namespace {

constexpr double Gap = 6;
constexpr double FullCard = 76;
constexpr double LeastCard = 45;
constexpr double LineHeight = 24;
constexpr double LineHeads = 14;

QString Kind(const Clan& clan) {
    if (!clan.IsComputer) {
        return QStringLiteral("you");
    }
    return ToQt(clan.PersonalityName);
}

}  // namespace

ClanPanel::ClanPanel(QWidget* parent, const GameState& state)
    : QWidget(parent), state_(&state), rising_(new RisingWords(this)) {
    setAccessibleName(QStringLiteral("The clans, in the order of play"));
    for (int i = 0; i < MaxClans; ++i) {
        const auto index = static_cast<std::size_t>(i);
        GeneLists[index] = new GeneChips(this, state, i + 1);
        GeneLists[index]->setObjectName(QStringLiteral("genelist%1").arg(i));
        bplab[index] = MakeLabel(this, QStringLiteral("bplab%1").arg(i), 16, true, Tone::Ink);
        orderlab[index] = new PillLabel(this);
        orderlab[index]->setObjectName(QStringLiteral("orderlab%1").arg(i));
        WearLetters(*orderlab[index], 15, true);
        bplab[index]->setToolTip(QStringLiteral("Bio-points"));
    }
    ShowAll();
}

void ClanPanel::ShowState(const GameState& state) {
    state_ = &state;
    rising_->Stop();
    for (GeneChips* chips : GeneLists) {
        chips->ShowState(state);
    }
    ShowAll();
}

bool ClanPanel::Shown() const {
    return state_->NumPlayers >= 1 && state_->NumPlayers <= MaxClans && ClanAtPlace(*state_, state_->NumPlayers) >= 1;
}

int ClanPanel::FullHeight() const {
    return Px((FullCard + Gap) * state_->NumPlayers - (state_->NumPlayers > 0 ? Gap : 0));
}

int ClanPanel::LeastHeight() const {
    return Px((LeastCard + Gap) * state_->NumPlayers - (state_->NumPlayers > 0 ? Gap : 0));
}

int ClanPanel::ShortHeight() const {
    return Px(state_->NumPlayers > 0 ? LineHeads + LineHeight * state_->NumPlayers : 0);
}

bool ClanPanel::InLines() const {
    return height() < LeastHeight();
}

double ClanPanel::CardHeight() const {
    return std::min(FullCard, (UsualHeight(*this) - Gap * (state_->NumPlayers - 1)) / std::max(state_->NumPlayers, 1));
}

QRectF ClanPanel::CardRect(int place) const {
    if (InLines()) {
        return {0, LineHeads + LineHeight * (place - 1), UsualWidth(*this), LineHeight};
    }
    return {0, (CardHeight() + Gap) * (place - 1), UsualWidth(*this), CardHeight()};
}

ClanPanel::Columns ClanPanel::ColumnsOf() const {
    const double column = std::clamp(UsualWidth(*this) * 0.135, 44.0, 66.0);
    const double first = UsualWidth(*this) - 4 * column - 6;
    return {first, first + column, first + 2 * column, first + 3 * column, column};
}

void ClanPanel::ShowBP(int clan) {
    QLabel* label = bplab[static_cast<std::size_t>(clan - 1)];
    label->setText(QString::number(state_->BP[clan]));
    label->setAccessibleName(QStringLiteral("%1: %2 BP").arg(ToQt(state_->Players[clan].Name.View()), label->text()));
    update();
}

void ClanPanel::ShowOrder() {
    if (!Shown()) {
        return;
    }
    for (int place = 1; place <= state_->NumPlayers; ++place) {
        const int clan = ClanAtPlace(*state_, place);
        QLabel* label = orderlab[static_cast<std::size_t>(place - 1)];
        label->setText(QString::number(state_->Players[clan].Score));
        label->setAccessibleName(
            QStringLiteral("%1: score %2").arg(ToQt(state_->Players[clan].Name.View()), label->text()));
        label->setToolTip(
            QStringLiteral("Score %1, place %2 in the order of play").arg(state_->Players[clan].Score).arg(place));
        QPalette palette = label->palette();
        palette.setColor(QPalette::Window, LabelBackground(*state_, clan));
        palette.setColor(QPalette::WindowText, LabelText(*state_, clan));
        label->setPalette(palette);
    }
    Arrange();
    update();
}

void ClanPanel::ShowGenes(int clan) {
    GeneLists[static_cast<std::size_t>(clan - 1)]->Reread();
    update();
}

void ClanPanel::ShowCurrentClan(int clan) {
    current_ = clan;
    update();
}

void ClanPanel::ShowSafe(int clan) {
    safe_ = clan;
    update();
}

// The clans adapt in the order of play; afterwards nothing more comes of a level above the light.
bool ClanPanel::MustAdapt(int clan) const {
    return state_->Phase == "Environment" && clan != safe_ && PlaceOf(clan) >= PlaceOf(state_->CurPlayer) &&
           state_->Players[clan].MutationLevel > state_->UVLevel;
}

void ClanPanel::ShowAll() {
    for (int clan = 1; clan <= MaxClans; ++clan) {
        ShowGenes(clan);
        if (clan <= state_->NumPlayers) {
            ShowBP(clan);
        }
    }
    ShowOrder();
    Arrange();
    update();
}

void ClanPanel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::StyleChange) {
        ShowOrder();
    }
    QWidget::changeEvent(event);
}

void ClanPanel::resizeEvent(QResizeEvent*) {
    Arrange();
}

void ClanPanel::Arrange() {
    const Columns at = ColumnsOf();
    for (int place = 1; place <= MaxClans; ++place) {
        const bool used = Shown() && place <= state_->NumPlayers;
        orderlab[static_cast<std::size_t>(place - 1)]->setVisible(used);
        bplab[static_cast<std::size_t>(place - 1)]->setVisible(Shown() && place <= state_->NumPlayers);
        GeneLists[static_cast<std::size_t>(place - 1)]->setVisible(used && !InLines());
        if (!used) {
            continue;
        }
        const auto clan = static_cast<std::size_t>(ClanAtPlace(*state_, place) - 1);
        const QRectF card = CardRect(place);
        const double figures = card.top() + (InLines() ? 0 : Roomy() ? 22 : 19);
        orderlab[static_cast<std::size_t>(place - 1)]->setGeometry(
            InPixels({at.Score, figures + 1, std::min(at.Width - 12, 40.0), 22}));
        bplab[clan]->setGeometry(InPixels({at.BP, figures, at.Width - 4, 24}));
        const double left = Roomy() ? 20 : 44;
        const double right = Roomy() ? UsualWidth(*this) - 10 : at.Score - 6;
        const double top = card.top() + (Roomy() ? 50 : 25);
        GeneLists[clan]->setGeometry(InPixels({left, top, right - left, card.bottom() - top - 2}));
    }
}

void ClanPanel::DrawHeads(QPainter& painter, double heads) const {
    const Columns at = ColumnsOf();
    constexpr double letters = 10;
    const double widest = QFontMetricsF(DrawnFont(letters)).horizontalAdvance(QStringLiteral("mutation"));
    painter.setFont(DrawnFont(letters * std::min(1.0, (at.Width - 3) / widest)));
    painter.setPen(Shade(Tone::Faint));
    painter.drawText(QPointF(at.Score, heads), QStringLiteral("score"));
    painter.drawText(QPointF(at.BP, heads), QStringLiteral("BP"));
    painter.drawText(QPointF(at.Amoebas, heads), QStringLiteral("amoebas"));
    painter.drawText(QPointF(at.Mutation, heads), QStringLiteral("mutation"));
}

void ClanPanel::DrawFigures(QPainter& painter, int clan, double top) const {
    const Columns at = ColumnsOf();
    painter.setFont(DrawnFont(16, true));
    painter.setPen(Shade(Tone::Ink));
    painter.drawText(QRectF(at.Amoebas, top, at.Width, 24), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("%1/%2").arg(state_->AmoebaCount[clan]).arg(state_->MaxAmoeba));
    const int level = state_->Players[clan].MutationLevel;
    painter.setPen(Shade(MustAdapt(clan) ? Tone::Alarm : Tone::Ink));
    painter.drawText(QRectF(at.Mutation, top, at.Width, 24), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("%1%2").arg(level).arg(level > state_->UVLevel ? QStringLiteral("!") : QString()));
}

void ClanPanel::DrawCard(QPainter& painter, int place) const {
    const int clan = ClanAtPlace(*state_, place);
    const ClanShades& shades = ShadesOf(clan);
    const QRectF card = CardRect(place).adjusted(1, 1, -1, -1);
    const bool acting = clan == current_;
    painter.setPen(acting ? QPen(shades.Body, 2.6) : QPen(Shade(Tone::CardEdge), 1.2));
    painter.setBrush(Shade(Tone::Card));
    painter.drawRoundedRect(card, 8, 8);
    QPainterPath edge;
    edge.addRoundedRect(card, 8, 8);
    painter.save();
    painter.setClipPath(edge);
    painter.fillRect(QRectF(card.left(), card.top(), 9, card.height()), shades.Body);
    painter.restore();
    DrawClanBadge(painter, clan, QPointF(card.left() + 26, card.top() + (Roomy() ? 25 : 20)), Roomy() ? 13 : 11);
    const double left = card.left() + (Roomy() ? 47 : 43);
    const double wide = ColumnsOf().Score - left - 6;
    const QFont nameFont = DrawnFont(Roomy() ? 14 : 12, true);
    painter.setFont(nameFont);
    painter.setPen(Shade(Tone::Ink));
    const QString name =
        QFontMetricsF(nameFont).elidedText(ToQt(state_->Players[clan].Name.View()), Qt::ElideRight, wide);
    painter.drawText(QPointF(left, card.top() + (Roomy() ? 22 : 17)), name);
    painter.setFont(DrawnFont(Roomy() ? 11.5 : 10));
    painter.setPen(Shade(Tone::Faint));
    if (Roomy()) {
        painter.drawText(QPointF(left, card.top() + 39), Kind(state_->Players[clan]));
    } else {
        const double after = QFontMetricsF(nameFont).horizontalAdvance(name) + 6;
        const double room = wide - after;
        painter.drawText(QRectF(left + after, card.top() + 5, room, 16), Qt::AlignLeft | Qt::AlignVCenter,
                         QFontMetricsF(painter.font()).elidedText(Kind(state_->Players[clan]), Qt::ElideRight, room));
    }
    const double top = CardRect(place).top();
    DrawHeads(painter, top + (Roomy() ? 17 : 15));
    DrawFigures(painter, clan, top + (Roomy() ? 22 : 19));
}

void ClanPanel::DrawLine(QPainter& painter, int place) const {
    const int clan = ClanAtPlace(*state_, place);
    const QRectF line = CardRect(place);
    if (clan == current_) {
        painter.setPen(QPen(ShadesOf(clan).Body, 2));
        painter.setBrush(Shade(Tone::Card));
        painter.drawRoundedRect(line.adjusted(1, 1, -1, -1), 6, 6);
    }
    DrawClanBadge(painter, clan, QPointF(line.left() + 15, line.center().y()), 9);
    const QFont font = DrawnFont(13, true);
    const double wide = ColumnsOf().Score - 34;
    painter.setFont(font);
    painter.setPen(Shade(Tone::Ink));
    painter.drawText(QRectF(line.left() + 30, line.top(), wide, line.height()), Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(font).elidedText(ToQt(state_->Players[clan].Name.View()), Qt::ElideRight, wide));
    if (place == 1) {
        DrawHeads(painter, LineHeads - 3);
    }
    DrawFigures(painter, clan, line.top());
}

void ClanPanel::paintEvent(QPaintEvent*) {
    if (!Shown()) {
        return;
    }
    QPainter painter(this);
    PaintUsual(painter);
    for (int place = 1; place <= state_->NumPlayers; ++place) {
        InLines() ? DrawLine(painter, place) : DrawCard(painter, place);
    }
}

}  // namespace plasmos
