// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/heard.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <QWidget>
#include <algorithm>
#include <map>

namespace plasmos {

namespace {

class PictureHeard;

/// One part of a picture; it lives as long as the picture is heard.
class PartHeard : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    PartHeard(QWidget& widget, HeardPicture& picture, int part) : widget_(&widget), picture_(&picture), part_(part) {}

    bool isValid() const override { return widget_ != nullptr && !Heard().Place.isEmpty(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return widget_ != nullptr ? widget_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int childCount() const override { return static_cast<int>(Parts().size()); }
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text text) const override { return text == QAccessible::Name ? Heard().Name : QString(); }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return Heard().Role; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }

    QStringList actionNames() const override;
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    int Part() const { return part_; }

private:
    HeardPart Heard() const { return widget_ != nullptr ? picture_->Hear(part_) : HeardPart{}; }
    std::vector<int> Parts() const { return widget_ != nullptr ? picture_->PartsOf(part_) : std::vector<int>(); }
    PictureHeard* Whole() const;

    QPointer<QWidget> widget_;
    HeardPicture* picture_;
    int part_;
};

/// A widget with its parts first and its child widgets behind them.
class PictureHeard : public QAccessibleWidget {
public:
    PictureHeard(QWidget* widget, HeardPicture& picture)
        : QAccessibleWidget(widget, QAccessible::Graphic), picture_(&picture) {}
    ~PictureHeard() override {
        for (const auto& [part, id] : ids_) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    int childCount() const override { return static_cast<int>(Parts().size()) + QAccessibleWidget::childCount(); }
    QAccessibleInterface* child(int index) const override {
        const std::vector<int> parts = Parts();
        const int count = static_cast<int>(parts.size());
        return index >= 0 && index < count ? Part(parts[static_cast<std::size_t>(index)])
                                           : QAccessibleWidget::child(index - count);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const std::vector<int> parts = Parts();
        if (const auto* part = dynamic_cast<const PartHeard*>(child)) {
            const auto found = std::find(parts.begin(), parts.end(), part->Part());
            return found != parts.end() ? static_cast<int>(found - parts.begin()) : -1;
        }
        const int index = QAccessibleWidget::indexOfChild(child);
        return index < 0 ? index : index + static_cast<int>(parts.size());
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const int part = Alive() ? picture_->PartAt(widget()->mapFromGlobal(QPoint(x, y))) : 0;
        return part > 0 ? Part(part) : QAccessibleWidget::childAt(x, y);
    }
    QAccessibleInterface* focusChild() const override {
        const int part = Alive() ? picture_->FocusedPart() : 0;
        return part > 0 ? Part(part) : QAccessibleWidget::focusChild();
    }

    QAccessibleInterface* Part(int part) const {
        const auto found = ids_.find(part);
        if (found != ids_.end()) {
            return QAccessible::accessibleInterface(found->second);
        }
        auto* heard = new PartHeard(*widget(), *picture_, part);
        ids_[part] = QAccessible::registerAccessibleInterface(heard);
        return heard;
    }

private:
    bool Alive() const { return widget() != nullptr && isValid(); }
    std::vector<int> Parts() const { return Alive() ? picture_->PartsOf(0) : std::vector<int>(); }

    HeardPicture* picture_;
    mutable std::map<int, QAccessible::Id> ids_;
};

PictureHeard* PartHeardWhole(QWidget* widget) {
    return widget != nullptr ? dynamic_cast<PictureHeard*>(QAccessible::queryAccessibleInterface(widget)) : nullptr;
}

PictureHeard* PartHeard::Whole() const {
    return PartHeardWhole(widget_);
}

QAccessibleInterface* PartHeard::parent() const {
    PictureHeard* whole = Whole();
    const int part = whole != nullptr ? picture_->WholeOf(part_) : 0;
    return part > 0 ? whole->Part(part) : static_cast<QAccessibleInterface*>(whole);
}

QAccessibleInterface* PartHeard::child(int index) const {
    const std::vector<int> parts = Parts();
    const bool there = index >= 0 && index < static_cast<int>(parts.size()) && Whole() != nullptr;
    return there ? Whole()->Part(parts[static_cast<std::size_t>(index)]) : nullptr;
}

QAccessibleInterface* PartHeard::childAt(int x, int y) const {
    for (int index = 0; index < childCount(); ++index) {
        if (child(index)->rect().contains(x, y)) {
            return child(index);
        }
    }
    return nullptr;
}

int PartHeard::indexOfChild(const QAccessibleInterface* child) const {
    const auto* part = dynamic_cast<const PartHeard*>(child);
    const std::vector<int> parts = Parts();
    const auto found = part != nullptr ? std::find(parts.begin(), parts.end(), part->Part()) : parts.end();
    return found != parts.end() ? static_cast<int>(found - parts.begin()) : -1;
}

QRect PartHeard::rect() const {
    const QRect place = Heard().Place;
    return widget_ != nullptr && !place.isEmpty() ? QRect(widget_->mapToGlobal(place.topLeft()), place.size())
                                                  : QRect();
}

QAccessible::State PartHeard::state() const {
    const HeardPart heard = Heard();
    QAccessible::State state;
    state.readOnly = true;
    state.invisible = widget_ == nullptr || !widget_->isVisible() || heard.Place.isEmpty();
    state.focusable = heard.CanFocus;
    state.focused = widget_ != nullptr && widget_->hasFocus() && picture_->FocusedPart() == part_;
    state.selectable = heard.CanChoose;
    return state;
}

QStringList PartHeard::actionNames() const {
    return Heard().CanChoose ? QStringList{pressAction()} : QStringList();
}

void PartHeard::doAction(const QString& action) {
    if (action == pressAction() && Heard().CanChoose) {
        picture_->PressPart(part_);
    }
}

QAccessibleInterface* Make(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) {
        return nullptr;
    }
    if (auto* picture = dynamic_cast<HeardPicture*>(object)) {
        return new PictureHeard(widget, *picture);
    }
    const auto* place = dynamic_cast<HeardPlace*>(object);
    return place != nullptr ? new QAccessibleWidget(widget, place->HeardRole) : nullptr;
}

void TakeCharge() {
    QAccessible::removeFactory(Make);
    QAccessible::installFactory(Make);
}

}  // namespace

HeardPicture::HeardPicture() {
    TakeCharge();
}

HeardPlace::HeardPlace(QAccessible::Role role) : HeardRole(role) {
    TakeCharge();
}

void TellFocus(QWidget& picture) {
    if (!QAccessible::isActive()) {
        return;
    }
    const auto* parts = dynamic_cast<HeardPicture*>(&picture);
    PictureHeard* whole = PartHeardWhole(&picture);
    if (parts != nullptr && whole != nullptr && parts->FocusedPart() > 0) {
        QAccessibleEvent event(whole->Part(parts->FocusedPart()), QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

void TellAlert(QWidget& widget) {
    if (QAccessible::isActive()) {
        QAccessibleEvent event(&widget, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

}  // namespace plasmos
