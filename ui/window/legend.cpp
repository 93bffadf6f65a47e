// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/legend.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPainter>
#include <QScreen>

#include "model/game_state.h"
#include "ui/look/blob_shape.h"
#include "ui/look/card.h"
#include "ui/look/cube.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/look/scroll_body.h"
#include "ui/strip/environment_view.h"

namespace plasmos {

namespace {

constexpr int PictureWidth = 132;
constexpr int PictureHeight = 52;

using Draw = void (*)(QPainter& painter);

/// A sign of the legend, drawn as it is drawn in the game.
class SignPicture : public QWidget {
public:
    SignPicture(QWidget* parent, Draw draw) : QWidget(parent), draw_(draw) {
        setFixedSize(PictureWidth, PictureHeight);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Shade(Tone::WaterEdge), 1));
        painter.setBrush(Shade(Tone::WaterMiddle));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
        draw_(painter);
    }

private:
    Draw draw_;
};

void DrawClans(QPainter& painter) {
    for (int clan = 1; clan <= MaxClans; ++clan) {
        DrawClanBadge(painter, clan, QPointF(16 + 20 * (clan - 1), PictureHeight / 2.0), 9);
    }
}

void DrawPiece(QPainter& painter) {
    DrawBlob(painter, {5, 3, 0, false, false, 1}, QPointF(40, 26), 21);
    DrawBlob(painter, {1, 2, 0, true, false, 1}, QPointF(94, 26), 21);
}

void DrawDamage(QPainter& painter) {
    DrawBlob(painter, {2, 4, 1, false, false, 1}, QPointF(40, 26), 21);
    DrawBlob(painter, {2, 6, 3, false, false, 1}, QPointF(94, 26), 21);
}

void DrawCubes(QPainter& painter) {
    for (int clan = 1; clan <= 3; ++clan) {
        for (int high = 0; high < clan; ++high) {
            DrawCube(painter, clan, QRectF(22 + 24 * clan, 36 - 15 * high, 13, 13));
        }
    }
}

void DrawCounts(QPainter& painter) {
    DrawCube(painter, 4, QRectF(46, 30, 15, 15));
    painter.setFont(DrawnFont(15, true));
    painter.setPen(Shade(Tone::CountInk));
    painter.drawText(QRectF(66, 28, 40, 20), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("×7"));
}

void DrawMenuDigits(QPainter& painter) {
    painter.setFont(DrawnFont(20, true));
    painter.setPen(Shade(Tone::CountInk));
    painter.drawText(QRectF(10, 6, 44, 40), Qt::AlignCenter, QStringLiteral("211"));
    DrawCube(painter, 1, QRectF(62, 28, 14, 14));
    DrawCube(painter, 1, QRectF(62, 12, 14, 14));
    DrawCube(painter, 3, QRectF(84, 28, 14, 14));
    DrawCube(painter, 4, QRectF(106, 28, 14, 14));
}

void DrawOffered(QPainter& painter) {
    painter.setBrush(Shade(Tone::Offer));
    painter.setPen(QPen(Shade(Tone::OfferLine), 5));
    painter.drawRoundedRect(QRectF(46, 8, 40, 36), 4, 4);
    painter.setPen(QPen(Shade(Tone::OfferEdge), 3));
    painter.drawRoundedRect(QRectF(46, 8, 40, 36), 4, 4);
}

void DrawSpeaksOf(QPainter& painter) {
    painter.setBrush(Shade(Tone::SpokenOf));
    painter.setPen(QPen(Shade(Tone::Accent), 2, Qt::DashLine));
    painter.drawRoundedRect(QRectF(46, 8, 40, 36), 4, 4);
}

void DrawDrift(QPainter& painter) {
    DrawDriftArrow(painter, 1, QPointF(40, 26), 14);
    DrawDriftArrow(painter, 0, QPointF(94, 26), 14);
}

void DrawFreeDrift(QPainter& painter) {
    DrawDriftArrow(painter, WhereItWants, QPointF(66, 26), 17);
}

void DrawOrder(QPainter& painter) {
    painter.setFont(DrawnFont(14, true));
    for (int place = 0; place < 3; ++place) {
        const QRectF pill(14 + 38 * place, 15, 32, 22);
        painter.setPen(QPen(Shade(Tone::Shadow), 1));
        painter.setBrush(ShadesOf(4 - place).Body);
        painter.drawRoundedRect(pill, 8, 8);
        painter.setPen(ShadesOf(4 - place).Ink);
        painter.drawText(pill, Qt::AlignCenter, QString::number(21 - 4 * place));
    }
}

void DrawMutation(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(Shade(Tone::LevelMiddle));
    painter.drawRoundedRect(QRectF(16, 14, 100, 10), 5, 5);
    painter.setBrush(Shade(Tone::Ink));
    painter.drawRect(QRectF(80, 8, 2, 16));
    DrawClanBadge(painter, 1, QPointF(46, 34), 6);
    DrawClanBadge(painter, 4, QPointF(100, 34), 6);
}

void DrawWord(QPainter& painter, const QString& word) {
    painter.setFont(DrawnFont(13, true));
    painter.setPen(Shade(Tone::CountInk));
    painter.drawText(QRectF(0, 0, PictureWidth, PictureHeight), Qt::AlignCenter, word);
}

struct SignRow {
    Draw Picture;
    const char* Text;
};

constexpr SignRow Signs[] = {
    {DrawClans, "Every clan has a colour and a sign. They stand on its amoebas, its food, its card and its lines."},
    {DrawPiece, "An amoeba with its number. The one with the dark and light outline is the one that acts."},
    {DrawDamage,
     "Damage: a crack for every time it has starved or was wounded. Two cracks kill it when the next "
     "aggression phase begins, three where its clan has Life Expectancy."},
    {DrawCubes, "Food, by the colour of the clan that left it. A clan eats the others' colours, never its own."},
    {DrawCounts, "So many pieces of that colour, where they are more than can be shown."},
    {DrawMenuDigits, "A meal as a number: 211 is two pieces of one colour and one each of two others."},
    {DrawOffered, "A square that can be chosen now."},
    {DrawSpeaksOf, "The square that the question speaks of."},
    {DrawDrift, "The drift: where the current carries every amoeba, or that it stands still."},
    {DrawFreeDrift, "The drift lets every amoeba go where it wants, free of charge."},
    {DrawMutation,
     "UV light. A clan whose sign stands to the right of the mark has more mutation than the light "
     "allows, and must adapt when the card is turned. The figure on its card has a \"!\" then, and is red until it is "
     "safe."},
    {DrawOrder,
     "The scores in the order of play: the leader stands first. Movement goes through it from behind. A clan scores "
     "for its amoebas and for its genes, and jumps over spaces that are taken; the log tells how many of each."},
    {[](QPainter& painter) { DrawWord(painter, QStringLiteral("auto-eating")); },
     "This clan's amoebas eat without asking. Who finds no menu attacks to eat, unasked too, for 1 BP, where its clan "
     "has "
     "Struggle for Survival or Aggression. It is switched under Options, like the tentacle."},
    {[](QPainter& painter) { DrawWord(painter, QStringLiteral("mv1  arm")); },
     "Genes by their short names, where there is no room for the long ones. The pointer on one tells what it is and "
     "does."},
    {[](QPainter& painter) { DrawWord(painter, QStringLiteral("hosts")); },
     "With Parasitism: how many clans here could lend a piece of food for this meal, two at most, for 1 BP of theirs "
     "each."},
};

struct KeyRow {
    const char* Keys;
    const char* Text;
};

constexpr KeyRow Keys[] = {
    {"Y, N", "yes and no"},
    {"Arrow keys", "the cursor on the board; the next control in a dialog"},
    {"Tab, Shift+Tab", "the next and the previous control, or offered square"},
    {"Enter, Space", "the square under the cursor; the button that has the focus"},
    {"Escape", "closes a dialog, which says what that does"},
    {"Page Up, Page Down", "looks back a phase of the game, and on; turns the pages of a long dialog"},
    {"Home, End, Esc", "looks back at the beginning of the game, and at the present again"},
    {"Ctrl+Z, Ctrl+Shift+Z", "takes an answer back, and gives it again"},
    {"Ctrl+O, Ctrl+S", "opens a game, and saves this one"},
    {"F4", "why the other clans did what they did last"},
    {"Alt and a letter", "the menu or control whose letter is underlined"},
    {"Ctrl+1 to Ctrl+4", "the pace: slow, normal, fast, instant"},
    {"F8", "pause, and on again"},
    {"F9", "one step, while paused"},
    {"F1", "the handbook"},
    {"F2", "the signs on the board"},
    {"F3", "these keys"},
    {"Ctrl+Q", "quit"},
};

/// The window of a name, empty if it was not open; the program has one of each.
QDialog* OpenWindow(QWidget& parent, const QString& name, const QString& title, QGridLayout*& rows) {
    auto* dialog = parent.findChild<QDialog*>(name);
    rows = nullptr;
    if (dialog == nullptr) {
        dialog = new QDialog(&parent);
        dialog->setObjectName(name);
        dialog->setWindowTitle(title);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        auto* outer = new QVBoxLayout(dialog);
        auto* scroll = new ScrollBody(dialog);
        rows = new QGridLayout(scroll->Content());
        rows->setColumnStretch(1, 1);
        rows->setHorizontalSpacing(14);
        rows->setVerticalSpacing(8);
        outer->addWidget(scroll, 1);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
        QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
        outer->addWidget(buttons);
    }
    return dialog;
}

void AddText(QGridLayout& rows, int row, const char* text) {
    auto* label = new WrapLabel(rows.parentWidget());
    label->setText(QString::fromUtf8(text));
    WearLetters(*label, 13);
    WearTone(*label, Tone::Ink);
    rows.addWidget(label, row, 1);
}

void Show(QDialog& dialog, QSize size) {
    Dress(dialog);
    if (!dialog.isVisible()) {
        dialog.resize((size * Letters()).boundedTo(dialog.screen()->availableSize() - UsualFrame));
    }
    dialog.show();
    dialog.raise();
}

}  // namespace

void ShowSigns(QWidget& window) {
    QGridLayout* rows = nullptr;
    QDialog* dialog = OpenWindow(window, QStringLiteral("signs"), QStringLiteral("Plasmos - Signs"), rows);
    int row = 0;
    for (const SignRow& sign : Signs) {
        if (rows != nullptr) {
            rows->addWidget(new SignPicture(rows->parentWidget(), sign.Picture), row, 0, Qt::AlignTop);
            AddText(*rows, row++, sign.Text);
        }
    }
    Show(*dialog, QSize(560, 720));
}

void ShowKeys(QWidget& window) {
    QGridLayout* rows = nullptr;
    QDialog* dialog = OpenWindow(window, QStringLiteral("keys"), QStringLiteral("Plasmos - Keys"), rows);
    int row = 0;
    for (const KeyRow& key : Keys) {
        if (rows != nullptr) {
            QLabel* keys = MakeLabel(rows->parentWidget(), {}, 13, true, Tone::Ink);
            keys->setText(QString::fromLatin1(key.Keys));
            rows->addWidget(keys, row, 0, Qt::AlignTop);
            AddText(*rows, row++, key.Text);
        }
    }
    Show(*dialog, QSize(520, 460));
}

}  // namespace plasmos
