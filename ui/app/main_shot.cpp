// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/game_files.h"
#include "files/process.h"
#include "files/settings_store.h"
#include "model/dice.h"
#include "model/game_state.h"
#include "model/services.h"
#include "ui/app/auto_person.h"
#include "ui/app/film.h"
#include "ui/app/sample_boards.h"
#include "ui/app/scale_factors.h"
#include "ui/app/shot_moments.h"
#include "ui/app/shot_wish.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/window/uboard.h"

namespace {

using namespace plasmos;

constexpr int LastDemoTurn = LastTurn;

/// A window that takes pictures of itself.
class DemoBoard : public UBoard {
public:
    explicit DemoBoard(QString folder);

    bool Take(const QString& name) {
        const QString path = QDir(folder_).filePath(name);
        const bool saved = grab().save(path);
        if (saved) {
            pictures_.push_back(path);
        }
        failed_ = failed_ || !saved;
        return saved;
    }

    bool Failed() const { return failed_; }
    const std::vector<QString>& Pictures() const { return pictures_; }

private:
    QString folder_;
    std::vector<QString> pictures_;
    bool failed_ = false;
};

/// Prints the log, and has pictures taken at the turns of a demonstration.
class DemoPresentation : public BoardPresentation {
public:
    DemoPresentation(const BoardParts& parts, DemoBoard& board) : BoardPresentation(parts), board_(&board) {}

    void Log(std::string_view line, int clan) override {
        BoardPresentation::Log(line, clan);
        std::printf("%.*s\n", static_cast<int>(line.size()), line.data());
    }

    void ShowTurn() override {
        BoardPresentation::ShowTurn();
        if (game.Turn == 1) {
            board_->Take(QStringLiteral("first.png"));
        } else if (game.Turn == LastDemoTurn / 2 + 1) {
            board_->Take(QStringLiteral("middle.png"));
        }
    }

private:
    DemoBoard* board_;
};

DemoBoard::DemoBoard(QString folder)
    : UBoard([this](const BoardParts& parts) { return std::make_unique<DemoPresentation>(parts, *this); }),
      folder_(std::move(folder)) {}

int Refuse(const char* why) {
    std::fprintf(stderr,
                 "plasmos-shot: %s; "
                 "usage: plasmos-shot FILE [--replay N] [--size WxH] [--colours light|dark|contrast] [--points N] "
                 "[--clans N] [--at turn|meal|genes|adapt|birth|attack|victim|look|why|resume|start|end] | "
                 "--demo FOLDER | --boards FOLDER | --film FOLDER\n",
                 why);
    return 2;
}

/// What a person sees: the window, and what is open above it.
QPixmap Seen(UBoard& board) {
    QPixmap picture = board.grab();
    for (QWidget* dialog : board.findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly)) {
        const QPixmap above = dialog->grab();
        QPainter(&picture).drawPixmap(QPoint(40, board.height() - dialog->height() - 60), above);
    }
    return picture;
}

/// Chooses the moment's item of the menus; false: the picture is taken later.
bool ChooseItem(UBoard& board, const ShotMoment& moment) {
    for (int time = 0; moment.Item != nullptr && time < moment.Times; ++time) {
        board.findChild<QAction*>(QString::fromLatin1(moment.Item))->trigger();
    }
    return !moment.Ends;
}

bool Save(UBoard& board, const QString& file) {
    constexpr int small = 0;
    return Seen(board).toImage().convertToFormat(QImage::Format_RGB888).save(file, nullptr, small);
}

/// A game with a person who answers at once, until the moment of the picture, or to its end.
int TakeShot(const Wish& wish) {
    UBoard board;
    board.SetSpeed(0);
    board.resize(wish.Size);
    board.show();
    AutoPerson person(board);
    bool saved = false;
    bool taken = false;
    board.OnQuestion = [&](Question& question) {
        if (!taken && wish.At->Is(question)) {
            if (!ChooseItem(board, *wish.At)) {
                return;
            }
            taken = true;
            saved = Save(board, wish.File);
            board.EndProgram();
            return;
        }
        person.Answer(question);
    };
    QTimer::singleShot(0, &board, [&board] {
        board.gob_Click();
        QCoreApplication::exit(0);
    });
    QApplication::exec();
    if (!taken) {
        saved = Save(board, wish.File);
    }
    if (!saved) {
        std::fprintf(stderr, "plasmos-shot: %s cannot be written\n", qPrintable(wish.File));
    }
    return saved ? 0 : 1;
}

int PaintBoards(const Wish& wish) {
    if (PaintSampleBoards(wish.Folder)) {
        return 0;
    }
    std::fprintf(stderr, "plasmos-shot: a picture in %s cannot be written\n", qPrintable(wish.Folder));
    return 1;
}

int PlayDemo(const Wish& wish) {
    DemoBoard board(wish.Folder);
    board.SetSpeed(0);
    board.resize(wish.Size);
    board.show();
    QTimer::singleShot(0, &board, [&board] {
        board.watch_Click();
        QCoreApplication::exit(0);
    });
    QApplication::exec();
    board.Take(QStringLiteral("last.png"));
    for (const QString& path : board.Pictures()) {
        std::printf("%s\n", qPrintable(path));
    }
    if (board.Failed()) {
        std::fprintf(stderr, "plasmos-shot: a picture in %s cannot be written\n", qPrintable(wish.Folder));
    }
    const bool told = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    if (!told) {
        std::fputs("plasmos-shot: standard output cannot be written\n", stderr);
    }
    return board.Failed() || !told ? 1 : 0;
}

int FillFolder(const Wish& wish) {
    if (!QDir().mkpath(wish.Folder)) {
        std::fprintf(stderr, "plasmos-shot: the folder %s cannot be made\n", qPrintable(wish.Folder));
        return 1;
    }
    if (wish.Film) {
        const bool taken = TakeFilm(wish);
        if (!taken) {
            std::fprintf(stderr, "plasmos-shot: a picture in %s cannot be written\n", qPrintable(wish.Folder));
        }
        return taken ? 0 : 1;
    }
    return wish.Boards ? PaintBoards(wish) : PlayDemo(wish);
}

}  // namespace

int main(int argc, char** argv) {
    PrepareProcess();
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    const char* why = "";
    const auto wish = ReadWish(arguments, why);
    if (!wish) {
        return Refuse(why);
    }
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
        !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    int count = 1;
    CheckScaleFactors();
    QApplication application(count, argv);
    PrepareApplication();
    const QTemporaryDir folder;
    DataFolder files(folder.path().toStdString());
    MemorySettings settings;
    services.Files = &files;
    // cppcheck-suppress danglingLifetime  // nothing of the services is used after main
    services.Settings = &settings;
    settings.Save("look", "colours", SchemeName(wish->Colours).toStdString());
    if (wish->Points > 0) {
        QFont letters = QApplication::font();
        letters.setPointSize(wish->Points);
        QApplication::setFont(letters);
    }
    game.HasRequestedReplay = true;
    game.RequestedReplay = wish->Replay;
    game.RequestedClans = wish->Clans;
    return wish->Folder.isEmpty() ? TakeShot(*wish) : FillFolder(*wish);
}
