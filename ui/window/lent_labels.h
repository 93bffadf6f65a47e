// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

namespace plasmos {

class EnvironmentView;

/// The labels of drift and UV level lend themselves for three seconds at the right button: the first shows the
/// replay number, the second the mean UV level of the cards still to come, both of the state that is shown.
class LentLabels : public QObject {
public:
    LentLabels(QObject* parent, EnvironmentView& environment);

    /// The labels show their own figures again.
    void GiveBack();
    /// The program ends: whatever is lent stays.
    void Stop() { zyTimer_->stop(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void driftlab_MouseDown();
    void UVlab_MouseUp();
    void Borrow(const QString& label);

    EnvironmentView* environment_;
    /// The labels themselves: their last events come when the card around them is gone.
    QObject* driftlab_;
    QObject* UVlab_;
    QTimer* zyTimer_;
    QString borrowed_;
};

}  // namespace plasmos
