// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/support/scene.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTemporaryFile>
#include <QTextEdit>
#include <QTimer>
#include <numeric>

#include "files/runtime_error.h"
#include "model/happening.h"
#include "model/presentation.h"
#include "model/services.h"
#include "questions/ask.h"
#include "tests/support/game_fixture.h"
#include "ui/app/auto_person.h"
#include "ui/board/puddle_view.h"
#include "ui/look/piece_layout.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

/// A position that a test has set up, as the window shows it in the middle of a game.
void ShowPosition() {
    Presentation& board = Board();
    board.StartLog("Game: test");
    board.ShowTurn();
    Happened({.What = Happening::Kind::CardIsTurned, .Number = game.UVLevel, .Second = game.Drift});
    Happened({.What = Happening::Kind::OrderIsMade});
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        board.ShowClan(clan);
    }
    board.ShowCurrentClan(game.CurPlayer);
    board.DrawBoard();
}

}  // namespace

QString FolderTemplate() {
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/plasmos-XXXXXX");
}

void ChooseScreen() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && platform != "offscreen") {
        return;
    }
    const QByteArray size = qEnvironmentVariableIsSet("PLASMOS_SCREEN") ? qgetenv("PLASMOS_SCREEN") : "1600x1200";
    static QTemporaryFile file(FolderTemplate());
    if (!file.open()) {
        qFatal("there is no room for the description of a screen");
    }
    const QList<QByteArray> sides = size.split('x');
    file.write("{\"windowFrameMargins\":true,\"screens\":[{\"name\":\"test\",\"x\":0,\"y\":0,\"width\":" + sides.at(0) +
               ",\"height\":" + sides.at(1) + ",\"logicalDpi\":96,\"logicalBaseDpi\":96,\"dpr\":1}]}");
    file.close();
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false"));
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toLocal8Bit());
}

Scene::Scene(const std::vector<SavedValue>& saved) : folder_(FolderTemplate()) {
    ForgetGame();
    files_ = std::make_unique<DataFolder>(QString(folder_.path() + QStringLiteral("/data")).toStdString());
    settings_ = std::make_unique<QtSettings>(folder_.path() + QStringLiteral("/settings.ini"));
    for (const SavedValue& value : saved) {
        settings_->Save(value.Section, value.Key, value.Value);
    }
    files_->MakeFolder();
    services.Files = files_.get();
    services.Settings = settings_.get();
    Open();
}

Scene::~Scene() {
    board_.reset();
    ForgetGame();
}

void Scene::Open() {
    board_ = std::make_unique<UBoard>();
    board_->SetSpeed(0);
    player_ = std::make_unique<AutoPerson>(*board_);
    player_->OnFault = [this](const std::string& why) { Fail(why); };
    board_->OnQuestion = [this](Question& question) { Answer(question); };
    board_->show();
    Activate(*board_);
    QCoreApplication::processEvents();
}

// Without a window manager the keyboard may be given to a window before the server can show it, and is then lost.
bool Scene::Activate(QWidget& window) {
    return QTest::qWaitFor(
        [&window] {
            if (!window.isActiveWindow()) {
                window.activateWindow();
            }
            return window.isActiveWindow();
        },
        KeyboardPatience);
}

void Scene::Reopen() {
    board_->close();
    board_.reset();
    services.Window = nullptr;
    Open();
}

PuddleView& Scene::Puddle() {
    return *board_->findChild<PuddleView*>();
}

QString Scene::FileText(std::string_view name) const {
    QFile file(ToQt(files_->PathOf(name)));
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

QStringList Scene::Log() {
    QStringList lines = board_->findChild<QTextEdit*>(QStringLiteral("txtLog"))->toPlainText().split(QLatin1Char('\n'));
    for (QString& line : lines) {
        for (int clan = 1; clan <= MaxClans; ++clan) {
            if (line.startsWith(SignCharacter(clan) + QLatin1Char(' '))) {
                line.remove(0, SignCharacter(clan).size() + 1);
            }
        }
    }
    return lines;
}

Scene& Scene::Then(QuestionKind kind, std::function<void()> act) {
    steps_.push_back({kind, std::nullopt, std::move(act)});
    return *this;
}

void Scene::Soon(std::function<void()> act) {
    QTimer::singleShot(20, board_.get(), std::move(act));
}

Scene& Scene::ThenYes(std::string text) {
    steps_.push_back({QuestionKind::YesNo, std::move(text), [this] { Click(QStringLiteral("yesb")); }});
    return *this;
}

Scene& Scene::ThenNo(std::string text) {
    steps_.push_back({QuestionKind::YesNo, std::move(text), [this] { Click(QStringLiteral("nob")); }});
    return *this;
}

Scene& Scene::ThenBox(std::string text) {
    steps_.push_back({QuestionKind::Box, std::move(text), [this] { Click(QStringLiteral("okb")); }});
    return *this;
}

Scene& Scene::ThenSquare(std::vector<int> offered, int square) {
    return Then(QuestionKind::Square, [this, offered = std::move(offered), square] {
        if (Puddle().Offered() != offered) {
            std::string squares;
            for (const int one : Puddle().Offered()) {
                squares += Concat(" ", one);
            }
            Fail("the squares that glow are" + squares);
            return;
        }
        ClickSquare(square);
    });
}

void Scene::Fail(const std::string& what) {
    if (fault_.empty()) {
        fault_ = what;
    }
    board_->EndProgram();
}

int Scene::Asked() const {
    return std::accumulate(std::begin(asked_), std::end(asked_), 0);
}

void Scene::Roll(std::vector<int> rolls) {
    tape_ = std::make_unique<DiceTape>(std::move(rolls));
    services.Tape = tape_.get();
}

void Scene::Answer(Question& question) {
    const auto where = [&] {
        return Concat("question ", Asked(), " (", QuestionKindName(question.Kind), ", turn ", game.Turn, ", \"",
                      question.Text, "\"): ");
    };
    ++asked_[static_cast<std::size_t>(question.Kind)];
    if (const std::string wrong = WhatIsWrong(*this, question); !wrong.empty()) {
        Fail(where() + wrong);
        return;
    }
    if (Watch) {
        Watch(question);
    }
    if (next_ == steps_.size()) {
        const auto policy = policy_;
        policy ? (*policy)(question) : Fail(where() + "nobody expects it");
        return;
    }
    const Step& step = steps_[next_++];
    if (step.Kind != question.Kind || (step.Text && *step.Text != question.Text)) {
        Fail(where() +
             Concat("expected is ", QuestionKindName(step.Kind), " \"", step.Text.value_or("any text"), "\""));
        return;
    }
    step.Act();
    if (QTest::currentTestFailed()) {
        Fail(Concat("at step ", next_));
    }
}

void Scene::Run(const std::function<void()>& rule, const char* file, int line) {
    bool late = false;
    QTimer watchdog;
    watchdog.setSingleShot(true);
    QObject::connect(&watchdog, &QTimer::timeout, board_.get(), [this, &late] {
        late = true;
        const Question* top = board_->TopQuestion();
        Fail("it does not go on" + (top != nullptr ? ": " + top->Text : std::string()));
    });
    watchdog.start(Patience);
    ended_ = false;
    try {
        rule();
    } catch (const ProgramEnd&) {
        ended_ = true;
    } catch (const std::exception& error) {
        Fail(error.what());
    }
    QCoreApplication::processEvents();
    if (fault_.empty() && next_ != steps_.size()) {
        fault_ = Concat(steps_.size() - next_, " steps of the person were not asked for, the first at ", next_ + 1);
    }
    if (fault_.empty() && !AllRolled()) {
        fault_ = "not every roll was rolled";
    }
    services.Tape = nullptr;
    tape_.reset();
    steps_.clear();
    next_ = 0;
    if (!fault_.empty()) {
        QTest::qFail(fault_.c_str(), file, line);
        fault_.clear();
    }
}

void Scene::RunPhase(const std::function<void()>& rule, const char* file, int line) {
    std::exception_ptr thrown;
    Run(
        [&] {
            board_->Play([&] {
                ShowPosition();
                try {
                    rule();
                } catch (...) {
                    thrown = std::current_exception();
                }
            });
            if (thrown) {
                std::rethrow_exception(thrown);
            }
        },
        file, line);
}

}  // namespace plasmos::testing
