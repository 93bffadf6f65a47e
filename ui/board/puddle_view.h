// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

namespace plasmos {

struct GameState;

/// The board picture, `Picture1`: the puddle with squares, stones, food and pieces, drawn from the state
/// it is given. What the moment marks - offered squares, the outlined piece - stays when another state is shown.
/// Points are handed over in board units, SquareUnits to a square whatever its size on the screen.
class PuddleView : public QWidget {
    Q_OBJECT

public:
    PuddleView(QWidget* parent, const GameState& state);

    /// Shows another state, which is to live as long as it is shown. Nothing glides or fades any more.
    void ShowState(const GameState& state);
    const GameState& State() const { return *state_; }

    /// The mouse is released, or Enter pressed on a square, at a point in board units.
    std::function<void(int x, int y)> OnSquarePoint;

    void ShowGridlines(bool on);
    void ShowNumbers(bool on);
    /// Squares that glow because they may be clicked; empty: none.
    void SetOffered(const std::vector<int>& squares);
    const std::vector<int>& Offered() const { return offered_; }
    /// The square that the open question speaks of; 0: none.
    void SetSpokenOf(int square);
    int SpokenOf() const { return spokenOf_; }
    void OutlinePiece(int clan, int amoeba, bool on);
    /// A piece glides from its old square to the place it has now; no square: nothing moves.
    void Glide(int clan, int amoeba, int fromSquare, int milliseconds);
    /// A piece that is no longer there fades away on its square.
    void FadeAway(int clan, int amoeba, int square, int milliseconds);
    /// Ends every glide and fade.
    void Settle();

    /// A point of the widget in board units, and back.
    QPoint UnitsAt(QPointF point) const;
    QPointF PointAt(QPointF units) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct Motion {
        int Clan;
        int Amoeba;
        int Damage;
        bool Dying;
        QRectF From;
        int Milliseconds;
        QElapsedTimer Clock;
    };

    double Scale() const;
    void DrawBackground();
    void DrawSquares(QPainter& painter) const;
    void DrawWaiting(QPainter& painter) const;
    void DrawPieces(QPainter& painter) const;
    void DrawMotions(QPainter& painter) const;
    bool Moves(int clan, int amoeba) const;
    bool Offers(int square) const;
    void SetHover(int square);
    void MoveCursor(int columns, int rows);
    void Tick();

    const GameState* state_;
    bool gridlines_ = true;
    bool numbers_ = false;
    bool pressed_ = false;
    int hover_ = 0;
    int cursor_ = 0;
    int spokenOf_ = 0;
    int outlinedClan_ = 0;
    int outlinedAmoeba_ = 0;
    std::vector<int> offered_;
    std::vector<Motion> motions_;
    QTimer motionTimer_;
    QPixmap background_;
    QString backgroundKey_;
};

}  // namespace plasmos
