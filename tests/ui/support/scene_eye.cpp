// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

#include "tests/ui/support/scene.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

QWidget* Scene::Find(const QString& name) {
    QWidget* best = nullptr;
    int bestRank = 0;
    for (QWidget* widget : board_->findChildren<QWidget*>(name)) {
        const int rank = !widget->isVisible() ? 1 : widget->isEnabled() ? 3 : 2;
        if (rank > bestRank) {
            best = widget;
            bestRank = rank;
        }
    }
    return best;
}

bool Scene::Sees(const QString& name) {
    const QWidget* widget = Find(name);
    return widget != nullptr && widget->isVisible();
}

bool Scene::Enabled(const QString& name) {
    const QWidget* widget = Find(name);
    return widget != nullptr && widget->isEnabled();
}

QString Scene::Text(const QString& name) {
    QWidget* widget = Find(name);
    if (const auto* label = qobject_cast<QLabel*>(widget)) {
        return label->text();
    }
    if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
        return button->text();
    }
    const auto* field = qobject_cast<QLineEdit*>(widget);
    return field != nullptr ? field->text() : QStringLiteral("no control named ") + name;
}

bool Scene::Ticked(const QString& name) {
    const auto* button = qobject_cast<QAbstractButton*>(Find(name));
    return button != nullptr && button->isChecked();
}

}  // namespace plasmos::testing
