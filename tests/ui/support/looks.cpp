// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the window must show while a question is open, control by control.

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>

#include "model/gene_texts.h"
#include "questions/visit.h"
#include "rules/environment.h"
#include "tests/ui/support/scene.h"
#include "ui/board/puddle_view.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

/// Collects the first difference between what is shown and what should be.
class Comparison {
public:
    explicit Comparison(Scene& scene) : scene_(scene) {}

    void Text(const QString& name, std::string_view expected) {
        const QString shown = scene_.Text(name);
        if (shown != ToQt(expected)) {
            Note(Concat(name.toStdString(), " shows \"", shown.toStdString(), "\", not \"", expected, "\""));
        }
    }
    /// The words of a question, alone or as new lines below what has been told.
    void Asks(const QString& name, const std::string& question) {
        const QString asked = u'\n' + ToQt(question);
        const QString shown = u'\n' + scene_.Text(name);
        if (!shown.endsWith(question.front() == '\n' ? ToQt(question) : asked)) {
            Note(Concat(name.toStdString(), " shows \"", shown.toStdString(), "\", which does not ask \"", question,
                        "\""));
        }
    }
    void Seen(const QString& name, bool expected) {
        if (scene_.Sees(name) != expected) {
            Note(Concat(name.toStdString(), expected ? " is hidden" : " is in sight"));
        }
    }
    void Enabled(const QString& name, bool expected) {
        if (scene_.Enabled(name) != expected) {
            Note(Concat(name.toStdString(), expected ? " is disabled" : " is enabled"));
        }
    }
    void Ticked(const QString& name, bool expected) {
        if (scene_.Ticked(name) != expected) {
            Note(Concat(name.toStdString(), expected ? " is not ticked" : " is ticked"));
        }
    }
    /// A control that answers: its state, and nothing may cover or cut it. What scrolls is not looked for.
    void Answers(const QString& name, bool seen, bool enabled) {
        Seen(name, seen);
        if (seen) {
            Enabled(name, enabled);
            const QWidget* control = scene_.Find(name);
            if (control == nullptr || Scrolls(*control)) {
                return;
            }
            if (control->visibleRegion().boundingRect() != control->rect()) {
                Note(name.toStdString() + " is cut off");
            }
            Note(WhyOutOfReach(*control, control->rect().center()));
        }
    }
    void Colours(const QString& name, int clan) {
        const QPalette palette = scene_.Find(name)->palette();
        if (palette.color(QPalette::Window) != LabelBackground(game, clan) ||
            palette.color(QPalette::WindowText) != LabelText(game, clan)) {
            Note(Concat(name.toStdString(), " has not the colours of clan ", clan));
        }
    }
    static bool Scrolls(const QWidget& control) {
        const QWidget* above = control.parentWidget();
        while (above != nullptr && qobject_cast<const QScrollArea*>(above) == nullptr) {
            above = above->parentWidget();
        }
        return above != nullptr;
    }
    void Note(const std::string& what) {
        if (first_.empty()) {
            first_ = what;
        }
    }
    const std::string& First() const { return first_; }

private:
    Scene& scene_;
    std::string first_;
};

QString Numbered(const char* name, int number) {
    return QString::fromLatin1(name) + QString::number(number);
}

void CompareStatus(Comparison& see, Scene& scene) {
    const bool roomForClans = scene.Sees(QStringLiteral("bplab0"));
    for (int clan = 1; clan <= game.NumPlayers && roomForClans; ++clan) {
        see.Text(Numbered("bplab", clan - 1), Concat(game.BP[clan]));
        see.Seen(Numbered("bplab", clan - 1), true);
        see.Text(Numbered("orderlab", clan - 1), Concat(game.Players[ClanAtPlace(clan)].Score));
        see.Colours(Numbered("orderlab", clan - 1), ClanAtPlace(clan));
    }
    see.Seen(QStringLiteral("gob"), false);
    see.Enabled(QStringLiteral("gob"), false);
    if (game.Turn >= 1 && game.Turn <= LastTurn) {
        see.Text(QStringLiteral("turnlab"), Concat("Turn ", game.Turn));
    }
    const bool dealt = game.UVLevel > 0;
    see.Text(QStringLiteral("driftlab"), dealt ? DirectionText(game.Drift) : "");
    see.Text(QStringLiteral("UVlab"), dealt ? Concat(game.UVLevel) : "");
}

void CompareMessageLine(Comparison& see, const Question& question) {
    const bool yesNo = question.Kind == QuestionKind::YesNo;
    see.Answers(QStringLiteral("yesb"), yesNo, true);
    see.Answers(QStringLiteral("nob"), yesNo, true);
    if (yesNo || question.Kind == QuestionKind::Square) {
        see.Asks(QStringLiteral("msglab"), question.Text);
        see.Seen(QStringLiteral("msglab"), true);
        see.Colours(QStringLiteral("msglab"), question.Clan);
    }
}

void CompareSquares(Comparison& see, Scene& scene, const Question& question) {
    const auto* square = As<const SquareQuestion>(&question);
    const bool wanted = square != nullptr;
    const auto offered = wanted ? square->Offered : std::vector<int>();
    if (scene.Puddle().Offered() != offered) {
        see.Note("the squares that glow are not the offered ones");
    }
    if (wanted != game.WantSquare) {
        see.Note("WantSquare and the question differ");
    }
    if (wanted) {
        if (!scene.Text(QStringLiteral("hintlab"))
                 .endsWith(QStringLiteral(" cannot be chosen now; the glowing ones can."))) {
            see.Text(QStringLiteral("hintlab"), "Click one of the glowing squares.");
        }
        see.Seen(QStringLiteral("hintlab"), true);
    }
}

void CompareNumber(Comparison& see, const AmNumfrm& form) {
    see.Text(QStringLiteral("dialogTitle"), form.Caption);
    see.Text(QStringLiteral("amlab"), form.Text);
    for (int k = 0; k <= 7; ++k) {
        see.Answers(Numbered("amopt", k), form.amopt[k].Visible, form.amopt[k].Enabled);
        if (form.amopt[k].Visible) {
            see.Text(Numbered("amopt", k), Concat(k));
        }
    }
}

void CompareAmoebas(Comparison& see, const AmChoicefrm& form) {
    see.Text(QStringLiteral("dialogTitle"), form.Caption);
    see.Text(QStringLiteral("amlab"), form.Text);
    see.Text(QStringLiteral("amoptb"), "None");
    see.Answers(QStringLiteral("amoptb"), true, true);
    for (int k = 1; k <= 7; ++k) {
        see.Answers(Numbered("amopt", k), form.amopt[k].Visible, form.amopt[k].Enabled);
        if (form.amopt[k].Visible) {
            QString name = ToQt(game.Amoeba[k][form.Clan].Name.View());
            see.Text(Numbered("amopt", k), name.replace(QLatin1Char('&'), QStringLiteral("&&")).toStdString());
        }
    }
}

void CompareFood(Comparison& see, const FoodForm& form) {
    const bool carrying = form.Mode == "TENTACLE";
    see.Text(QStringLiteral("dialogTitle"),
             Concat(carrying ? "Carry food out of square " : "Eat in square ", form.Square));
    for (int field = 0; field <= 7; ++field) {
        const bool colour = field >= 1 && field <= game.NumPlayers;
        see.Answers(Numbered("fdtxt", field), form.fdtxt[field].Visible, form.fdtxt[field].Enabled);
        if (colour) {
            see.Text(Numbered("fdlab", field), Concat(game.Food[form.Square][field]));
            see.Text(Numbered("fdname", field), game.Players[field].Name.View());
            see.Text(Numbered("fdtxt", field), form.fdtxt[field].Text);
        }
    }
    see.Answers(QStringLiteral("eatb"), true, form.eatbEnabled);
    see.Text(QStringLiteral("eatb"), form.eatbCaption);
    see.Answers(QStringLiteral("suggestb"), !carrying && form.SuggestedMenu > 0, true);
    if (!carrying) {
        if (form.SuggestedMenu > 0) {
            see.Text(QStringLiteral("suggestb"), Concat("Suggested menu: ", form.SuggestedMenu));
        }
        see.Text(QStringLiteral("legallab"), form.LegalMenuLabel);
        see.Seen(QStringLiteral("legallab"), true);
        see.Answers(QStringLiteral("paropt"), true, form.paroptEnabled);
        see.Ticked(QStringLiteral("paropt"), form.paroptValue);
        see.Answers(QStringLiteral("sfsopt"), form.sfsoptVisible, form.sfsoptEnabled);
        see.Ticked(QStringLiteral("sfsopt"), form.sfsoptValue);
    }
    see.Answers(QStringLiteral("victimb"), !carrying, form.victimbEnabled);
}

void CompareVictims(Comparison& see, Scene& scene, const VictimForm& form) {
    see.Text(QStringLiteral("dialogTitle"), form.Text);
    see.Text(QStringLiteral("vfamlab"), form.vfamlab);
    see.Answers(QStringLiteral("doneb"), true, form.donebEnabled);
    int shown = 0;
    for (const VictimFigure& figure : form.Figures) {
        const QString name = Numbered("figure", shown++);
        see.Answers(name, true, figure.Markable);
        const QWidget* button = scene.Find(name);
        if (button == nullptr || button->property("tag").toString() != ToQt(figure.Tag())) {
            see.Note(name.toStdString() + " is another piece");
        }
    }
    int inSquare = 0;
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        inSquare += game.Occupancy[form.Square][clan];
    }
    if (shown != inSquare) {
        see.Note("not every piece of the square is drawn");
    }
}

void CompareGenes(Comparison& see, Scene& scene, const GeneForm& form) {
    const bool adapting = form.Adapts;
    see.Text(QStringLiteral("dialogTitle"), adapting ? "Adapt to the UV level" : "Buy new genes");
    for (int gene = 1; gene <= GeneCount; ++gene) {
        const QString name = Numbered("gcheck", gene);
        see.Answers(name, !adapting || game.Genes[gene][form.Clan], form.gcheck[gene].Enabled);
        see.Text(name, form.gcheck[gene].Caption);
        see.Ticked(name, form.gcheck[gene].Ticked);
        if (scene.Find(name)->toolTip() != ToQt(form.gcheck[gene].ToolTip)) {
            see.Note(name.toStdString() + " has another tool tip");
        }
        see.Text(Numbered("gcost", gene), GenePrice(game, gene));
    }
    see.Answers(QStringLiteral("EnvBP"), form.EnvBPVisible, true);
    see.Text(QStringLiteral("EnvBP"), form.EnvBP);
    see.Seen(QStringLiteral("ofLab"), form.ofLabVisible);
    see.Text(QStringLiteral("ofLab"), form.ofLab);
    see.Seen(QStringLiteral("UVdiff"), adapting);
    see.Seen(QStringLiteral("UVdiffLab"), adapting);
    see.Text(QStringLiteral("UVdiff"), Concat(form.UVdiff));
    see.Seen(QStringLiteral("BPlabel"), !adapting);
    see.Text(QStringLiteral("BPlabel"), form.BPlabel);
    see.Answers(QStringLiteral("lessbp"), form.EnvBPVisible, form.PaidBP() > 0);
    see.Answers(QStringLiteral("morebp"), form.EnvBPVisible, form.PaidBP() < game.BP[form.Clan]);
    see.Answers(QStringLiteral("adaptb"), adapting, !form.ShowsSuggestion());
    see.Answers(QStringLiteral("resetb"), form.resetbVisible, true);
    see.Answers(QStringLiteral("doneb"), true, true);
    const QColor colour = scene.Find(QStringLiteral("UVdiff"))->palette().color(QPalette::WindowText);
    if (adapting && colour != (form.UVdiff <= 0 ? QColor(0, 0, 255) : QColor(255, 0, 0))) {
        see.Note("UVdiff has the wrong colour");
    }
}

}  // namespace

std::string WhatIsWrong(Scene& scene, Question& question) {
    Comparison see(scene);
    if (scene.Board().TopQuestion() != &question) {
        return "it is not the topmost";
    }
    CompareStatus(see, scene);
    CompareMessageLine(see, question);
    CompareSquares(see, scene, question);
    Visit(question, Overloaded{[&](const AmNumfrm& form) { CompareNumber(see, form); },
                               [&](const AmChoicefrm& form) { CompareAmoebas(see, form); },
                               [&](const FoodForm& form) { CompareFood(see, form); },
                               [&](const VictimForm& form) { CompareVictims(see, scene, form); },
                               [&](const GeneForm& form) { CompareGenes(see, scene, form); },
                               [&](const BoxQuestion& box) {
                                   see.Text(QStringLiteral("boxlab"), box.Text);
                                   see.Answers(QStringLiteral("okb"), true, true);
                               },
                               [](const YesNoQuestion&) {}, [](const SquareQuestion&) {}});
    return see.First();
}

}  // namespace plasmos::testing
