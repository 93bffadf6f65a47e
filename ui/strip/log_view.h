// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextEdit>

#include "ui/look/theme.h"

namespace plasmos {

/// The game log, `txtLog`: lines with the sign of the clan that acts, under headings of turn and phase.
class LogView : public QTextEdit {
public:
    explicit LogView(QWidget* parent);

    /// Empties the log for the game that is about to begin.
    void Clear();
    /// The header line of the game; it comes first.
    void Start(const QString& header);
    /// Whether the game has had its header.
    bool Started() const { return started_; }
    /// A heading that is written when the first line below it comes.
    void Heading(const QString& heading);
    void Line(const QString& line, int clan);
    /// A line that stands back: what the rules do not tell in words.
    void QuietLine(const QString& line, int clan);

protected:
    void changeEvent(QEvent* event) override;

private:
    enum class Manner { Heading, Told, Quiet };

    void WriteHeading();
    void Recolour();
    static QColor ColourOf(Manner manner);
    void Append(const QString& sign, int clan, const QString& text, Manner manner);

    QString heading_;
    Scheme scheme_ = CurrentScheme();
    bool empty_ = true;
    bool started_ = false;
    bool following_ = true;  ///< the newest line stays in sight
};

}  // namespace plasmos
