// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    OptionsModel& model_;
    int column_ = 0;  ///< the square the keyboard is at, from 0
    int row_ = 0;
};

}  // namespace plasmos
