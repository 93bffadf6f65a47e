// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>

#include "ui/look/card.h"
#include "ui/look/heard.h"

namespace plasmos {

struct GameState;

/// What greets the person between two games: Go, the replay number, a game to watch, and for whoever has not begun one
/// yet the guided game.
class StartCard : public Card, public HeardPlace {
public:
    StartCard(QWidget* parent, const GameState& state);

    QPushButton* gob;
    QPushButton* guideb;
    QPushButton* watchb;
    QPushButton* resumeb;
    QLineEdit* txtReplay;

    /// Greets the person who has not played yet.
    void ShowWelcome();
    /// The guided game stands beside Go in the welcome, or in the menu alone.
    void OfferGuide(bool on);
    /// A game that waits to be gone on with: a line about it and a picture of its board; an empty line: none does.
    void OfferResume(const QString& line, const QPixmap& board);
    /// The longer side of that picture, in pixels of the window.
    static int PictureSide();
    /// A line about the game that is over, how it came out, everybody's places, and the clan that has won.
    void ShowResult(const QString& line, const QString& story, const QString& places, int clan);
    int HeightFor(int width, int room) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override { Redress(); }
    void Redress() override;

private:
    void Show(const QString& title, const QString& text, int clan);
    void ArrangeButtons(double wide, double top, double rows);
    void ArrangeResume(double wide, double top);
    double ResumeHeight() const;
    int ResultHeight(int width, const QString& text) const;

    static constexpr int Roomy = 420;

    const GameState& state_;
    QLabel* title_;
    FitLabel* text_;
    QLabel* replayLabel_;
    QLabel* resumeLine_;
    QPixmap resumeBoard_;
    QString story_;
    QString places_;
    int winner_ = 0;
    bool offersGuide_ = false;
};

}  // namespace plasmos
