// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/why_window.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>
#include <algorithm>

#include "model/game_state.h"
#include "record/game_recorder.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr std::size_t MostSteps = 30;

const char* DeedOf(Step step) {
    switch (step) {
        case Step::NewGame: return "are placed";
        case Step::Move: return "moves";
        case Step::Feed: return "feeds";
        case Step::Adapt: return "adapts";
        case Step::BuyGenes: return "buys genes";
        case Step::Divide: return "divides";
        case Step::Attack: return "attacks, or not";
        default: return "acts";
    }
}

QString HeadOf(const RecordHead& head, const GameRecorder::Why& why) {
    QString who = QStringLiteral("The clans");
    if (why.Clan > 0) {
        const auto& names = head.Names.Of(why.Clan);
        who = ToQt(names.Name);
        if (why.Amoeba > 0) {
            who = QStringLiteral("%1 of %2").arg(ToQt(names.Pieces.at(static_cast<std::size_t>(why.Amoeba - 1))), who);
        }
    }
    const QString when = why.Turn == 0 ? QStringLiteral("Before the first turn")
                                       : QStringLiteral("Turn %1").arg(std::min(why.Turn, LastTurn));
    return QStringLiteral("%1: %2 %3").arg(when, who, QString::fromLatin1(DeedOf(why.What)));
}

QString TextOf(const GameRecorder& recorder) {
    const RecordHead head = recorder.Record().Head;
    const auto& reasons = recorder.Reasons();
    QString text;
    for (std::size_t i = reasons.size(); i > 0 && reasons.size() - i < MostSteps; --i) {
        text += QStringLiteral("<p style='margin-top:6px'><b>%1</b>").arg(HeadOf(head, reasons[i - 1]).toHtmlEscaped());
        for (const auto& [moment, sentence] : reasons[i - 1].Sentences) {
            text += QStringLiteral("<br>") + ToQt(sentence).toHtmlEscaped();
        }
        text += QStringLiteral("</p>");
    }
    return text.isEmpty() ? QStringLiteral("No other clan has decided anything yet.") : text;
}

QDialog* MakeWindow(QWidget& window) {
    auto* dialog = new QDialog(&window);
    dialog->setObjectName(QStringLiteral("why"));
    dialog->setWindowTitle(QStringLiteral("Plasmos - Why?"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    auto* outer = new QVBoxLayout(dialog);
    auto* text = new QTextEdit(dialog);
    text->setObjectName(QStringLiteral("reasons"));
    text->setReadOnly(true);
    text->setAccessibleName(QStringLiteral("Why the clans did what they did, the latest first"));
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    WearLetters(*text, 13);
    outer->addWidget(text, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    buttons->button(QDialogButtonBox::Close)->setIcon(QIcon());  // the style's is dark on dark
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    outer->addWidget(buttons);
    return dialog;
}

}  // namespace

void ShowReasons(QWidget& window, const GameRecorder& recorder) {
    auto* dialog = window.findChild<QDialog*>(QStringLiteral("why"));
    if (dialog == nullptr) {
        dialog = MakeWindow(window);
        Dress(*dialog);
        dialog->resize(QSize(480, 420) * Letters());
    }
    RenewReasons(window, &recorder);
    dialog->show();
    dialog->raise();
}

void RenewReasons(QWidget& window, const GameRecorder* recorder) {
    const auto* dialog = window.findChild<QDialog*>(QStringLiteral("why"));
    if (dialog != nullptr) {
        dialog->findChild<QTextEdit*>(QStringLiteral("reasons"))
            ->setHtml(recorder != nullptr ? TextOf(*recorder) : QStringLiteral("No game is being played."));
    }
}

}  // namespace plasmos
