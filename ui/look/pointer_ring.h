// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QRect>
#include <QWidget>
#include <functional>

namespace plasmos {

/// A ring that is laid around a control, or a part of one, and follows it. It lets every press through, and is gone
/// where the control cannot be used.
class PointerRing : public QWidget {
public:
    /// A ring for what lies in `table`.
    explicit PointerRing(QWidget* table);

    /// Goes around a control, or a place of it that is asked for whenever something has moved. No control: nowhere.
    void PointAt(QWidget* control, std::function<QRect()> place = {});
    QWidget* Control() const { return control_; }
    /// The place of the control that it is around.
    QRect Place() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Listen(bool on);
    void Follow();

    QPointer<QWidget> control_;
    std::function<QRect()> place_;
};

}  // namespace plasmos
