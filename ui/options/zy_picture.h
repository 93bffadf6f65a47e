// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QWidget>
#include <functional>

namespace plasmos {

class OptionsModel;

/// The small board on which blocked squares are placed.
class ZyPicture : public QWidget {
public:
    /// Width and height of a square on the screen.
    static constexpr int SquarePixels = 40;

    ZyPicture(QWidget* parent, OptionsModel& model);

    /// A square is clicked: units of the picture; button 1 left, 2 right.
    std::function<void(int x, int y, int button)> OnClick;
    /// The model's board has another size.
    void Follow();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void DrawStone(QPainter& painter, const QRectF& stone, bool picked) const;
    /// A hand over a block, which closes while it is held.
    void ShowHand(QPoint place);
    bool IsBlock(QPoint place) const;
    void Click(QPoint place, int button);

    OptionsModel& model_;
    QPoint held_{-1, -1};  ///< where the block that is dragged was taken; -1: none is
    QPoint carried_;       ///< where it is now
    int column_ = 0;       ///< the square the keyboard is at, from 0
    int row_ = 0;
};

}  // namespace plasmos
