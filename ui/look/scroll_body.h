// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

namespace plasmos {

/// What scrolls up and down where there is no room for the whole of it. It wants the height that its
/// content has at a width, and takes less.
class ScrollBody : public QScrollArea {
public:
    explicit ScrollBody(QWidget* parent);

    /// The widget whose layout holds the content.
    QWidget* Content() const { return widget(); }
    /// Height of the whole content at a width.
    int HeightAt(int width) const;
    /// The least height that is of use: the content's, or a few lines of it.
    int LeastHeightAt(int width) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowBarIfNeeded();
};

}  // namespace plasmos
