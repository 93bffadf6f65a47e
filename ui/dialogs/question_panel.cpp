// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/question_panel.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "model/game_state.h"
#include "questions/visit.h"
#include "ui/dialogs/choice_panels.h"
#include "ui/dialogs/food_panel.h"
#include "ui/dialogs/gene_panel.h"
#include "ui/dialogs/victim_panel.h"
#include "ui/look/arrow_keys.h"
#include "ui/look/dress.h"
#include "ui/look/page_keys.h"
#include "ui/look/palette.h"
#include "ui/look/scroll_body.h"

namespace plasmos {

namespace {

constexpr int HeadHeight = 38;
constexpr int SideMargin = 14;
constexpr int Spacing = 6;

class RepeatFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonDblClick) {
            return true;
        }
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
            const auto* key = static_cast<QKeyEvent*>(event);
            const bool answers = key->key() == Qt::Key_Space || key->key() == Qt::Key_Return ||
                                 key->key() == Qt::Key_Enter || key->key() == Qt::Key_Escape;
            return answers && key->isAutoRepeat();
        }
        return false;
    }
};

/// Taking back is the game's, whatever has the keyboard.
class UndoFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride) {
            return false;
        }
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!key->matches(QKeySequence::Undo) && !key->matches(QKeySequence::Redo)) {
            return false;
        }
        event->ignore();
        return true;
    }
};

}  // namespace

void RefuseRepeats(QWidget* control) {
    control->installEventFilter(new RepeatFilter(control));
}

QuestionPanel::QuestionPanel(QWidget* parent, const GameState& state, const Question& question, const QString& title)
    : Card(parent),
      HeardPlace(QAccessible::Dialog),
      state_(state),
      question_(question),
      clan_(question.Clan),
      title_(MakeLabel(this, QStringLiteral("dialogTitle"), 14, true, Tone::Ink)),
      close_(MakeButton(QStringLiteral("closeb"), QStringLiteral("×"), false)),
      message_(MakeText(this, "messagelab", 13)),
      hint_(MakeText(this, "questionHint", 11)),
      closing_(MakeLabel(this, QStringLiteral("closelab"), 10, false, Tone::Faint)),
      scroll_(new ScrollBody(this)),
      body_(new QVBoxLayout(scroll_->Content())),
      foot_(new QVBoxLayout),
      arrows_(new ArrowKeys(this)) {
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(SideMargin, 6, SideMargin, 12);
    outer->setSpacing(Spacing);
    message_->hide();
    SetTitle(title);
    outer->addLayout(MakeHead());
    outer->addWidget(message_);
    body_->setContentsMargins(0, 0, 0, 0);
    body_->setSpacing(Spacing);
    outer->addWidget(scroll_, 1);
    foot_->setSpacing(Spacing);
    outer->addLayout(foot_);
    closing_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    outer->addWidget(closing_);
    hint_->setText(ToQt(question.Hint));
    hint_->setVisible(!question.Hint.empty());
    WearTone(*hint_, Tone::Faint);
    connect(close_, &QPushButton::clicked, this, [this] { CloseAsked(); });
    SetEdge(clan_ > 0 ? clan_ : -1);
}

QHBoxLayout* QuestionPanel::MakeHead() {
    auto* head = new QHBoxLayout;
    head->setContentsMargins(clan_ > 0 ? 28 : 0, 0, 0, 0);
    title_->setWordWrap(true);
    head->addWidget(title_, 1);
    close_->setFocusPolicy(Qt::NoFocus);
    WearSheet(*close_, QStringLiteral("QPushButton{border:none;background:transparent;color:@Faint;font-size:@18px;"
                                      "padding:0;min-height:@24px;min-width:@24px;max-width:@24px}"
                                      "QPushButton:hover{background:@HighlightPressed;border-radius:6px;color:@Ink}"));
    head->addWidget(close_, 0, Qt::AlignTop);
    return head;
}

int QuestionPanel::HeightFor(int width) const {
    const int around =
        layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width) : layout()->totalSizeHint().height();
    return around - scroll_->sizeHint().height() + scroll_->HeightAt(width - 2 * SideMargin);
}

int QuestionPanel::LeastHeight(int width) const {
    const int inner = width - 2 * SideMargin;
    return HeightWith(true, width) - scroll_->HeightAt(inner) + scroll_->LeastHeightAt(inner);
}

int QuestionPanel::HeightWith(bool message, int width) const {
    const bool shown = !message_->isHidden();
    const int line = message_->heightForWidth(width - 2 * SideMargin) + Spacing;
    return HeightFor(width) + (message == shown ? 0 : message ? line : -line);
}

void QuestionPanel::ShowMessage(bool on) {
    const QString text = ToQt(state_.Message);
    if (message_->text() != text) {
        message_->setText(text);
    }
    if (message_->isHidden() == on) {
        message_->setVisible(on);
    }
}

void QuestionPanel::Handle(const std::function<void()>& handler) {
    if (retired_ || question_.Answered()) {
        return;
    }
    handler();
    Reread();
    if (OnHandled) {
        OnHandled();
    }
}

void QuestionPanel::SetTitle(const QString& title, bool asks) {
    title_->setText(title);
    const bool said = !asks && !question_.Text.empty();
    setAccessibleName(said ? ToQt(question_.Text) : title);
    setAccessibleDescription(said ? ToQt(question_.Hint) : Spoken());
}

QString QuestionPanel::Spoken() const {
    return ToQt(question_.Text + (question_.Hint.empty() ? "" : "\n" + question_.Hint));
}

void QuestionPanel::SayClosing(const QString& effect) {
    const QString text = QStringLiteral("Esc: %1").arg(effect);
    closing_->setText(text);
    close_->setToolTip(text);
    close_->setAccessibleName(QStringLiteral("Close: %1").arg(effect));
}

QPushButton* QuestionPanel::MakeStep(QWidget* parent, const QString& name, bool up) {
    auto* button = new QPushButton(up ? QStringLiteral("+") : QStringLiteral("−"), parent);
    button->setObjectName(name);
    WearSheet(*button, QStringLiteral("padding:0;min-width:@24px;max-width:@24px;min-height:@22px;font-size:@15px"));
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRepeat(true);
    return button;
}

QPushButton* QuestionPanel::MakeButton(const QString& name, const QString& caption, bool main) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setProperty("main", main);
    button->setAutoDefault(true);
    RefuseRepeats(button);
    return button;
}

void QuestionPanel::OrderTabs(const std::vector<QWidget*>& controls) {
    for (QWidget* control : controls) {
        if (qobject_cast<QLineEdit*>(control) != nullptr) {
            control->installEventFilter(new UndoFilter(control));
        }
    }
    for (std::size_t i = 1; i < controls.size(); ++i) {
        setTabOrder(controls[i - 1], controls[i]);
    }
}

void QuestionPanel::paintEvent(QPaintEvent* event) {
    Card::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(clan_ > 0 ? ShadesOf(clan_).Body : Shade(Tone::Accent));
    painter.drawRoundedRect(QRectF(1.5, 1.5, width() - 3, 5), 2.5, 2.5);
    if (clan_ > 0) {
        DrawClanBadge(painter, clan_, QPointF(26, HeadHeight / 2.0 + 1), 10);
    }
}

// Where all of it is in sight, the keys go through the turns as everywhere.
bool QuestionPanel::event(QEvent* event) {
    return KeepsPageKeys(event, [this] { return scroll_->verticalScrollBar()->maximum() > 0; }) || Card::event(event);
}

void QuestionPanel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        if (!event->isAutoRepeat()) {
            CloseAsked();
        }
        return;
    }
    if (event->key() == Qt::Key_PageDown || event->key() == Qt::Key_PageUp) {
        scroll_->verticalScrollBar()->triggerAction(event->key() == Qt::Key_PageDown ? QScrollBar::SliderPageStepAdd
                                                                                     : QScrollBar::SliderPageStepSub);
        return;
    }
    if (arrows_->Move(event->key())) {
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        auto* button = qobject_cast<QPushButton*>(focusWidget());
        if (button != nullptr && button->isEnabled() && !event->isAutoRepeat()) {
            button->click();
        }
        return;
    }
    Card::keyPressEvent(event);
}

void QuestionPanel::TakeControls() {
    arrows_->Take();
    for (QWidget* control : scroll_->Content()->findChildren<QWidget*>()) {
        if (control->focusPolicy() != Qt::NoFocus) {
            control->installEventFilter(this);
        }
    }
}

// What the keyboard gets to is scrolled into sight. Whatever else gives a control the focus, a press of the
// mouse or the window coming back, leaves everything where it is.
bool QuestionPanel::eventFilter(QObject* watched, QEvent* event) {
    auto* control = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::FocusIn && scroll_->Content()->isAncestorOf(control)) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason) {
            scroll_->ensureWidgetVisible(control, 0, 4);
        }
    }
    return Card::eventFilter(watched, event);
}

namespace {

std::unique_ptr<QuestionPanel> PanelFor(QWidget* parent, const GameState& state, Question& question) {
    using Panel = std::unique_ptr<QuestionPanel>;
    return Visit(
        question,
        Overloaded{[](YesNoQuestion&) { return Panel(); }, [](SquareQuestion&) { return Panel(); },
                   [&](AmNumfrm& form) -> Panel { return std::make_unique<NumberPanel>(parent, state, form); },
                   [&](AmChoicefrm& form) -> Panel { return std::make_unique<AmoebaPanel>(parent, state, form); },
                   [&](FoodForm& form) -> Panel { return std::make_unique<FoodPanel>(parent, state, form); },
                   [&](VictimForm& form) -> Panel { return std::make_unique<VictimPanel>(parent, state, form); },
                   [&](GeneForm& form) -> Panel { return std::make_unique<GenePanel>(parent, state, form); },
                   [&](BoxQuestion& box) -> Panel { return std::make_unique<BoxPanel>(parent, state, box); }});
}

}  // namespace

std::unique_ptr<QuestionPanel> MakePanel(QWidget* parent, const GameState& state, Question& question) {
    auto panel = PanelFor(parent, state, question);
    if (panel) {
        panel->TakeControls();
    }
    return panel;
}

}  // namespace plasmos
