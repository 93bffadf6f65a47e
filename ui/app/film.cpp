// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/app/film.h"

#include <QApplication>
#include <QDir>
#include <QTimer>

#include "model/game_state.h"
#include "ui/app/auto_person.h"
#include "ui/window/uboard.h"

namespace plasmos {

namespace {

constexpr int FilmedTurn = 2;
constexpr int MillisecondsAFrame = 333;
constexpr int MillisecondsToThink = 900;
constexpr double Pace = 0.7;

bool IsBefore() {
    return game.Turn < FilmedTurn;
}

bool IsBehind() {
    return game.Turn > FilmedTurn;
}

/// At once before the filmed turn; in it somebody reads the question first.
void AnswerInTime(UBoard& board, AutoPerson& person, Question& question) {
    board.SetSpeed(IsBefore() ? 0 : Pace);
    if (IsBefore()) {
        person.Answer(question);
        return;
    }
    QTimer::singleShot(MillisecondsToThink, &board, [&board, &person] {
        if (Question* top = board.TopQuestion()) {
            person.Answer(*top);
        }
    });
}

}  // namespace

bool TakeFilm(const Wish& wish) {
    const QDir folder(wish.Folder);
    bool good = QDir().mkpath(wish.Folder);
    if (!good) {
        return false;
    }
    UBoard board;
    board.SetSpeed(0);
    board.resize(wish.Size);
    board.show();
    AutoPerson person(board);
    board.OnQuestion = [&](Question& question) { AnswerInTime(board, person, question); };
    int frame = 0;
    QTimer camera;
    QObject::connect(&camera, &QTimer::timeout, &board, [&] {
        if (IsBehind()) {
            board.EndProgram();
        } else if (!IsBefore()) {
            const QString name = QStringLiteral("frame-%1.png").arg(++frame, 3, 10, QLatin1Char('0'));
            good = board.grab().save(folder.filePath(name)) && good;
        }
    });
    camera.start(MillisecondsAFrame);
    QTimer::singleShot(0, &board, [&board] {
        board.gob_Click();
        QCoreApplication::exit(0);
    });
    QApplication::exec();
    return good && frame > 0;
}

}  // namespace plasmos
