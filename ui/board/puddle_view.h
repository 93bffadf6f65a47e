// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QWidget>
#include <array>
#include <functional>
#include <vector>

#include "model/game_state.h"
#include "ui/board/puddle_motions.h"
#include "ui/look/heard.h"

namespace plasmos {

/// The board picture, `Picture1`: the puddle with squares, stones, food and pieces, drawn from the state
/// it is given. What the moment marks - offered squares, the outlined piece - stays when another state is shown.
/// Points are handed over in board units, SquareUnits to a square whatever its size on the screen.
///
/// With the keyboard a cursor goes from square to square: the arrows move it, Tab and Shift+Tab go through the offered
/// squares and on, Enter and Space answer. By ear every square is a part, with its pieces and its food.
class PuddleView : public QWidget, public HeardPicture {
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
    /// What is asked of the person who is to choose a square, for who listens; empty: nothing.
    void SetAsked(const QString& question);
    const std::vector<int>& Offered() const { return offered_; }
    /// The square that the open question speaks of; 0: none.
    void SetSpokenOf(int square);
    int SpokenOf() const { return spokenOf_; }
    void OutlinePiece(int clan, int amoeba, bool on);
    PieceId Outlined() const { return outlined_; }
    /// The square of the keyboard's cursor; 0: none yet.
    int CursorSquare() const { return cursor_; }

    /// What moves over the board.
    PuddleMotions& Motions() { return motions_; }
    /// Where a piece was last seen in a square, or would lie there.
    QRectF LastSeen(PieceId piece, int square) const;
    /// Where a piece lies, or was last seen in a square.
    QRectF PlaceOf(PieceId piece, int square) const;
    /// The middle of a colour's heap of food.
    QPointF FoodPlace(int square, int colour) const;
    /// Ends every motion, and the link of an attack.
    void Settle();

    /// A point of the widget in board units, and back.
    QPoint UnitsAt(QPointF point) const;
    QPointF PointAt(QPointF units) const;
    /// The square in the widget.
    QRect SquareRect(int square) const;

    // ---- by ear ----
    std::vector<int> PartsOf(int part) const override;
    int WholeOf(int part) const override;
    HeardPart Hear(int part) const override;
    int PartAt(QPoint point) const override;
    int FocusedPart() const override;
    void PressPart(int part) override;

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    double Scale() const;
    void DrawBackground();
    void DrawSquares(QPainter& painter) const;
    void DrawWaiting(QPainter& painter) const;
    void DrawPieces(QPainter& painter);
    void DrawPiece(QPainter& painter, PieceId piece, bool outlined);
    void DrawCursor(QPainter& painter) const;
    bool Offers(int square) const;
    void SetHover(int square);
    void SetCursor(int square);
    void MoveCursor(int columns, int rows);
    /// The offered square after the cursor's, or before it; 0: there is none.
    int NextOffered(bool next) const;
    void AnswerAt(int square);
    QString TipAt(QPoint point) const;

    const GameState* state_;
    bool gridlines_ = true;
    bool numbers_ = false;
    bool pressed_ = false;
    int hover_ = 0;
    int cursor_ = 0;
    int spokenOf_ = 0;
    PieceId outlined_;
    std::vector<int> offered_;
    PuddleMotions motions_;
    std::array<std::array<QRectF, MaxPieces + 1>, MaxClans + 1> seen_;  ///< where every piece was painted last
    QPixmap background_;
    QString backgroundKey_;
};

}  // namespace plasmos
