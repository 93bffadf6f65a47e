// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/summary_panel.h"

#include <QBoxLayout>
#include <QFocusEvent>
#include <QKeyEvent>
#include <algorithm>

#include "model/game_state.h"
#include "ui/dialogs/question_panel.h"
#include "ui/look/arrow_keys.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/look/scroll_body.h"
#include "ui/strip/summary_table.h"
#include "ui/strip/turn_chart.h"

namespace plasmos {

namespace {

constexpr int Pad = 14;
constexpr int Edge = 10;
constexpr int Gap = 6;
constexpr int PleasantChart = 230;
constexpr int OfUse = 80;
constexpr int ScrollBar = 12;

QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(true);
    RefuseRepeats(button);
    return button;
}

QString PlayAgainCaption(int turn) {
    if (turn < 0) {
        return QStringLiteral("Play it again from a turn");
    }
    return turn == 0 ? QStringLiteral("Play it again from the start")
                     : QStringLiteral("Play it again from turn %1").arg(turn);
}

/// Words for a label that keeps what is told of a clan in one line.
QString InLines(const QString& words) {
    QStringList parts = words.split(QStringLiteral(", "));
    for (QString& part : parts) {
        const qsizetype colon = part.indexOf(QStringLiteral(": "));
        const qsizetype after = colon < 0 ? 0 : colon + 2;
        part = part.left(after) + part.mid(after).replace(QLatin1Char(' '), QChar::Nbsp);
    }
    return parts.join(QStringLiteral(", "));
}

std::vector<SummaryRow> RowsOf(const GameState& state, const TurnFigures& figures) {
    std::vector<SummaryRow> rows;
    for (int place = 1; place <= state.NumPlayers; ++place) {
        const int clan = ClanAtPlace(state, place);
        const Clan& one = state.Players[clan];
        rows.push_back({clan, ToQt(one.Name.View()),
                        one.IsComputer ? ToQt(one.PersonalityName.View()) : QStringLiteral("you"),
                        figures.Clans[clan]});
    }
    return rows;
}

}  // namespace

SummaryPanel::SummaryPanel(QWidget* parent, const GameState& state)
    : Card(parent),
      HeardPlace(QAccessible::Grouping),
      savegameb(MakeButton(this, "savegameb", QStringLiteral("Save this game"))),
      playagainb(MakeButton(this, "playagainb", PlayAgainCaption(-1))),
      newgameb(MakeButton(this, "newgameb", QStringLiteral("New game"))),
      state_(state),
      scroll_(new ScrollBody(this)),
      table_(new SummaryTable(scroll_->Content())),
      chart_(new TurnChart(scroll_->Content())),
      words_(new FitLabel(scroll_->Content(), 12, 10)) {
    setObjectName(QStringLiteral("summary"));
    setAccessibleName(QStringLiteral("How the game went"));
    words_->setObjectName(QStringLiteral("chartlab"));
    MakeKinds();
    MakeBody();
    OrderControls();
    Connect();
    hide();
}

void SummaryPanel::MakeKinds() {
    for (int number = 0; number < ChartCount; ++number) {
        const auto kind = static_cast<ChartKind>(number);
        auto* button = new QPushButton(ChartName(kind), scroll_->Content());
        button->setObjectName(QStringLiteral("chart_") + ChartName(kind).toLower());
        button->setToolTip(ChartTitle(kind));
        button->setCheckable(true);
        WearSheet(*button, QStringLiteral("QPushButton{padding:2px 4px;font-size:@12px;min-height:@16px}"
                                          "QPushButton:checked{background:@Accent;color:@OnAccent}"));
        connect(button, &QPushButton::clicked, this, [this, kind] { ShowChart(kind); });
        kinds_[static_cast<std::size_t>(number)] = button;
    }
}

void SummaryPanel::MakeBody() {
    auto* body = new QVBoxLayout(scroll_->Content());
    body->setContentsMargins(0, 0, 0, 0);
    body->addWidget(table_);
    auto* row = new QHBoxLayout();
    for (QPushButton* button : kinds_) {
        row->addWidget(button, 1);
    }
    body->addLayout(row);
    body->addWidget(chart_, 1);
    body->addWidget(words_);
}

void SummaryPanel::OrderControls() {
    (new ArrowKeys(this))->Take();
    QWidget* before = nullptr;
    for (QWidget* control : std::initializer_list<QWidget*>{kinds_[0], kinds_[1], kinds_[2], kinds_[3], chart_,
                                                            playagainb, savegameb, newgameb}) {
        control->installEventFilter(this);
        if (before != nullptr) {
            setTabOrder(before, control);
        }
        before = control;
    }
}

void SummaryPanel::Connect() {
    chart_->OnChosen = [this](int turn) { Choose(turn); };
    chart_->OnLook = [this] { ShowWords(); };
    connect(savegameb, &QPushButton::clicked, this, [this] { OnSave(); });
    connect(playagainb, &QPushButton::clicked, this, [this] { OnPlayAgain(turn_); });
    connect(newgameb, &QPushButton::clicked, this, [this] { OnNewGame(); });
}

void SummaryPanel::Show(const std::vector<TurnFigures>& figures) {
    figures_ = figures;
    turn_ = -1;
    names_.clear();
    longest_.clear();
    for (int clan = 1; HasGame() && clan <= state_.NumPlayers; ++clan) {
        names_ << ToQt(state_.Players[clan].Name.View());
    }
    for (int number = 0; number < ChartCount; ++number) {
        longest_ << MakeChart(static_cast<ChartKind>(number), figures_, names_).Words;
    }
    table_->Show(HasGame() ? RowsOf(state_, figures_.back()) : std::vector<SummaryRow>());
    chart_->Forget();
    ShowChart(ChartKind::Score);
    savegameb->setVisible(OnSave != nullptr);
    playagainb->setVisible(OnPlayAgain != nullptr);
    newgameb->setVisible(OnNewGame != nullptr);
    ShowPlayAgain();
    SummaryPanel::Redress();
}

// A group of buttons would keep the keyboard from those that are not chosen.
void SummaryPanel::ShowChart(ChartKind kind) {
    for (int number = 0; number < ChartCount; ++number) {
        kinds_[static_cast<std::size_t>(number)]->setChecked(static_cast<ChartKind>(number) == kind);
    }
    chart_->Show(MakeChart(kind, figures_, names_));
    chart_->setAccessibleName(ChartTitle(kind));
    ShowWords();
}

void SummaryPanel::ShowWords() {
    words_->SetText(InLines(chart_->Words()));
    words_->setAccessibleName(chart_->Words());
}

void SummaryPanel::Choose(int turn) {
    turn_ = turn;
    ShowPlayAgain();
    if (OnTurn) {
        OnTurn(turn);
    }
}

void SummaryPanel::ShowPlayAgain() {
    playagainb->setText(PlayAgainCaption(turn_));
    playagainb->setEnabled(turn_ >= 0);
}

// Whatever is told of a turn finds room, so that nothing moves while the pointer goes over the chart.
int SummaryPanel::WordsHeight(int width) const {
    int height = 0;
    for (const QString& words : longest_) {
        height = std::max(height, words_->HeightOf(InLines(words), width));
    }
    return height;
}

// Its caption changes with the turn, its place does not.
int SummaryPanel::WidthOf(const QPushButton* button) const {
    const QFontMetrics metrics(button->font());
    const int around = button->sizeHint().width() - metrics.horizontalAdvance(button->text());
    return around + metrics.horizontalAdvance(button == playagainb ? PlayAgainCaption(0) : button->text());
}

// The buttons take as many rows as they need; gives the height of all.
int SummaryPanel::ArrangeFoot(int width, int top, bool move) const {
    const int right = width - Px(Pad);
    const int high = newgameb->sizeHint().height();
    int left = Px(Pad);
    int rows = 0;
    for (QPushButton* button : {playagainb, savegameb, newgameb}) {
        if (button->isHidden()) {
            continue;
        }
        const int wide = std::min(WidthOf(button), right - Px(Pad));
        if (rows == 0 || left + wide > right) {
            left = Px(Pad);
            ++rows;
        }
        if (move) {
            button->setGeometry(left, top + (rows - 1) * (high + Px(Gap)), wide, high);
        }
        left += wide + Px(Gap);
    }
    return rows * (high + Px(Gap));
}

int SummaryPanel::LeastBody(int width) const {
    return table_->sizeHint().height() + kinds_[0]->sizeHint().height() + chart_->minimumHeight() + WordsHeight(width) +
           3 * Px(Gap);
}

int SummaryPanel::HeightFor(int width, int room) const {
    const int whole = LeastBody(width - 2 * Px(Pad) - ScrollBar) + ArrangeFoot(width, 0, false) + 2 * Px(Edge);
    return std::min(room, whole + std::max(Px(PleasantChart) - chart_->minimumHeight(), 0));
}

int SummaryPanel::LeastHeight(int width) const {
    return Px(OfUse) + ArrangeFoot(width, 0, false) + 2 * Px(Edge);
}

void SummaryPanel::Redress() {
    const int inner = width() - 2 * Px(Pad);
    const int foot = ArrangeFoot(width(), 0, false);
    scroll_->Content()->layout()->setSpacing(Px(Gap));
    chart_->setMinimumHeight(TurnChart::LeastHeight(static_cast<int>(names_.size())));
    words_->setFixedHeight(WordsHeight(inner - ScrollBar));
    const int body = height() - foot - 2 * Px(Edge);
    scroll_->setGeometry(Px(Pad), Px(Edge), inner, std::max(body, 0));
    ArrangeFoot(width(), Px(Edge) + std::max(body, 0) + Px(Gap), true);
}

// The chart is so wide that its middle is far from what stands around it.
QWidget* SummaryPanel::NextTo(const QWidget* control, int key) const {
    const auto kind = std::find(kinds_.begin(), kinds_.end(), control);
    if (kind != kinds_.end() && key == Qt::Key_Down) {
        return chart_;
    }
    if (control == chart_ && key == Qt::Key_Up) {
        return *std::find_if(kinds_.begin(), kinds_.end(), [](const QPushButton* one) { return one->isChecked(); });
    }
    const bool below = control->parentWidget() == this && control->y() < scroll_->geometry().bottom() + 2 * Px(Gap);
    return below && key == Qt::Key_Up ? chart_ : nullptr;
}

// What the keyboard gets to is scrolled into sight.
bool SummaryPanel::eventFilter(QObject* watched, QEvent* event) {
    auto* control = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::KeyPress) {
        QWidget* next = NextTo(control, static_cast<QKeyEvent*>(event)->key());
        if (next != nullptr) {
            next->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    if (event->type() == QEvent::FocusIn && scroll_->Content()->isAncestorOf(control)) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
            scroll_->ensureWidgetVisible(control, 0, 4);
        }
    }
    return Card::eventFilter(watched, event);
}

}  // namespace plasmos
