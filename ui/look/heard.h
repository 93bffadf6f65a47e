// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QPoint>
#include <QRect>
#include <QString>
#include <vector>

class QWidget;

namespace plasmos {

/// What a listener hears of one part of a picture.
struct HeardPart {
    QString Name;
    QAccessible::Role Role = QAccessible::StaticText;
    QRect Place;             ///< in the picture; empty: it is not there any more
    bool CanFocus = false;   ///< the keyboard's cursor can go there
    bool CanChoose = false;  ///< it is offered as an answer
};

/// A widget whose picture has parts that are no widgets: squares, pieces, cards. Who cannot see it hears every part as
/// an object of its own. Parts have numbers from 1 that the picture gives them; part 0 is the picture.
class HeardPicture {
public:
    HeardPicture();
    virtual ~HeardPicture() = default;
    HeardPicture(const HeardPicture&) = delete;
    HeardPicture& operator=(const HeardPicture&) = delete;

    /// The parts that lie in a part, those that are there now.
    virtual std::vector<int> PartsOf(int part) const = 0;
    /// The part that a part lies in.
    virtual int WholeOf(int /*part*/) const { return 0; }
    virtual HeardPart Hear(int part) const = 0;
    /// The innermost part at a point; 0: none.
    virtual int PartAt(QPoint point) const = 0;
    /// The part that the keyboard is at; 0: none.
    virtual int FocusedPart() const { return 0; }
    /// Chooses a part, as a press on it does.
    virtual void PressPart(int /*part*/) {}
};

/// A part of the window that a listener comes into and is told of: a dialog, a group. Who does not say so is heard as
/// nothing but a gap between its neighbours.
class HeardPlace {
public:
    explicit HeardPlace(QAccessible::Role role);
    virtual ~HeardPlace() = default;
    HeardPlace(const HeardPlace&) = delete;
    HeardPlace& operator=(const HeardPlace&) = delete;

    const QAccessible::Role HeardRole;
};

/// The keyboard has gone to another part, which is told.
void TellFocus(QWidget& picture);
/// Something new stands in a widget, and is told at once.
void TellAlert(QWidget& widget);

}  // namespace plasmos
