// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextEdit>

namespace plasmos {

/// The game log, `txtLog`: lines with the sign of the clan that acts, under headings of turn and phase.
class LogView : public QTextEdit {
public:
    explicit LogView(QWidget* parent);

    /// Empties the log; the header line comes first.
    void Start(const QString& header);
    /// A heading that is written when the first line below it comes.
    void Heading(const QString& heading);
    void Line(const QString& line, int clan);
    /// A line that stands back: what the rules do not tell in words.
    void QuietLine(const QString& line, int clan);

private:
    enum class Manner { Heading, Told, Quiet };

    void WriteHeading();
    void Append(const QString& sign, int clan, const QString& text, Manner manner);

    QString heading_;
    bool empty_ = true;
    bool following_ = true;  ///< the newest line stays in sight
};

}  // namespace plasmos
