// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextEdit>
#include <functional>
#include <vector>

#include "ui/look/theme.h"

namespace plasmos {

/// The game log, `txtLog`: lines with the sign of the clan that acts, under headings of turn and phase.
class LogView : public QTextEdit {
public:
    explicit LogView(QWidget* parent);

    /// Gives the moment of the game that a line belongs to as it is written; a line of moment 0 leads nowhere.
    std::function<int()> MomentOfNow;
    /// A line is pressed, or Enter on the line of the cursor: somebody wants to see its moment.
    std::function<void(int moment)> OnMoment;
    /// Why what a line tells was done; empty: nobody knows.
    std::function<QString(int moment)> WhyOf;
    /// Marks the last line of a moment, or of what came before it, and brings it into sight; 0: none.
    void MarkMoment(int moment);

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
    /// While lines are held they are not in sight; they are written at one stroke when that is over, which many lines
    /// want: each would be laid out by itself.
    void Hold(bool on);

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Manner { Heading, Told, Quiet };
    struct Entry {
        QString Sign;
        int Clan;
        QString Text;
        Manner How;
        int Moment;
    };

    void WriteHeading();
    void Mark();
    void LookAtLine(const QTextCursor& cursor);
    void Recolour();
    static QColor ColourOf(Manner manner);
    void Append(const QString& sign, int clan, const QString& text, Manner manner);
    void Write(const Entry& entry);

    QString heading_;
    int marked_ = 0;  ///< the moment
    QPoint pressed_;
    Scheme scheme_ = CurrentScheme();
    std::vector<Entry> waiting_;
    bool held_ = false;
    bool empty_ = true;
    bool started_ = false;
    bool following_ = true;  ///< the newest line stays in sight
};

}  // namespace plasmos
