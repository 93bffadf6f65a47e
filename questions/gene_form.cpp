// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/gene_form.h"

#include <algorithm>

#include "files/strings.h"
#include "model/bio_points.h"
#include "model/genes.h"
#include "questions/ask.h"

namespace plasmos {

namespace {

constexpr std::int32_t Blue = 0xFF0000;
constexpr std::int32_t Red = 0x0000FF;
constexpr std::size_t MostDigits = 9;

/// Reads BP as they are typed: an optional sign and at most 9 digits, a fraction is cut off.
bool ParseBP(std::string_view text, int& value) {
    text = Trim(text);
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+')) {
        text.remove_prefix(1);
    }
    const auto point = text.find('.');
    const auto whole = text.substr(0, point);
    const auto fraction = point == std::string_view::npos ? std::string_view{} : text.substr(point + 1);
    const auto isDigits = [](std::string_view part) {
        return part.find_first_not_of("0123456789") == std::string_view::npos;
    };
    if (whole.size() + fraction.size() == 0 || whole.size() > MostDigits || !isDigits(whole) || !isDigits(fraction)) {
        return false;
    }
    value = 0;
    for (const char digit : whole) {
        value = value * 10 + (digit - '0');
    }
    value = negative ? -value : value;
    return true;
}

std::string HeldMark(int gene) {
    return Concat("~", gene, "~");
}

}  // namespace

GeneForm::GeneForm(int clan, std::string text) : Question(QuestionKind::Genes, clan, std::move(text)) {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        gcheck[gene].Caption = GeneName(gene);
        gcheck[gene].ToolTip = GeneTip(gene);
    }
}

GeneForm::~GeneForm() {
    game.DoneFlag = 0;
    game.DiscardedPoints = 0;
}

std::vector<Answer> GeneForm::Allowed() const {
    std::vector<Answer> allowed;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (gcheck[gene].Enabled) {
            allowed.push_back(Numbered(gcheck[gene].Ticked ? Answer::Kind::Untick : Answer::Kind::Tick, gene));
        }
    }
    for (int bp = 0; Adapts && EnvBPVisible && bp <= game.BP[Clan]; ++bp) {
        allowed.push_back(TypedInto(Answer::Kind::Pay, 0, Concat(bp)));
    }
    if (resetbVisible) {
        allowed.push_back(Plain(Answer::Kind::Reset));
    }
    if (!Adapts || UVdiff <= 0) {
        allowed.push_back(Plain(Answer::Kind::Done));
    }
    return allowed;
}

void GeneForm::SetBoxesToHeld() {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        gcheck[gene].Ticked = gcheck[gene].Enabled = game.Genes[gene][Clan];
    }
}

void GeneForm::SetUVdiff(int value) {
    UVdiff = value;
    UVdiff_Change();
}

void GeneForm::UVdiff_Change() {
    UVdiffColour = UVdiff <= 0 ? Blue : Red;
}

void GeneForm::PrepareEnvironment() {
    EnvBP = "0";
    BPlabelVisible = false;
    UVdiffVisible = true;
    const int bp = game.BP[Clan];
    EnvBPVisible = ofLabVisible = bp > 0;
    ofLab = bp > 0 ? Concat("of ", bp) : std::string();
    SetBoxesToHeld();
    Adapts = true;
    SetUVdiff(game.Players[Clan].MutationLevel - game.UVLevel);
    SetDiscarded(0);
    suggestion_ = CheapestAdaptation(game, Clan);
    game.DoneFlag = 0;
}

void GeneForm::PrepareNewGenes() {
    Adapts = false;
    BPlabelVisible = true;
    BPlabel = Concat(game.BP[Clan]);
    heldOnEntry_ = "";
    for (int gene = 1; gene <= GeneCount; ++gene) {
        gcheck[gene].Ticked = game.Genes[gene][Clan];
        gcheck[gene].Enabled = CanBuyGene(Clan, gene);
        if (gcheck[gene].Ticked) {
            heldOnEntry_ += HeldMark(gene);
        }
    }
    game.DoneFlag = 0;
}

void GeneForm::gcheck_Click(int gene) {
    const bool ticked = gene >= 1 && gene <= GeneCount && gcheck[gene].Enabled && gcheck[gene].Ticked;
    Put(Numbered(ticked ? Answer::Kind::Untick : Answer::Kind::Tick, gene));
}

void GeneForm::Store(const Answer& answer) {
    switch (answer.What) {
        case Answer::Kind::Tick:
        case Answer::Kind::Untick: Click(answer); break;
        case Answer::Kind::Pay: Pay(answer); break;
        case Answer::Kind::Reset:
            if (Adapts) {
                Reset();
            }
            break;
        case Answer::Kind::Done:
        case Answer::Kind::Close: Finish(); break;
        default: NoteAnswer(*this, answer, false);
    }
}

void GeneForm::Click(const Answer& answer) {
    const int gene = answer.Number;
    const bool ticks = answer.What == Answer::Kind::Tick;
    if (gene < 1 || gene > GeneCount || !gcheck[gene].Enabled || gcheck[gene].Ticked == ticks) {
        NoteAnswer(*this, answer, false);
        return;
    }
    CheckBox& box = gcheck[gene];
    box.Ticked = !box.Ticked;
    NoteAnswer(*this, Numbered(box.Ticked ? Answer::Kind::Tick : Answer::Kind::Untick, gene), true);
    if (Adapts) {
        GiveUp(gene);
    } else {
        PressedBox = gene;
        Pressed = Button::Box;
    }
}

void GeneForm::GiveUp(int gene) {
    const int points = PointsOf(gene);
    SetDiscarded(discarded_ + (gcheck[gene].Ticked ? -points : points));
    SetUVdiff(game.Players[Clan].MutationLevel - game.UVLevel - discarded_);
    resetbVisible = true;
}

void GeneForm::ShowHeld() {
    BPlabel = Concat(game.BP[Clan]);
    for (int gene = 1; gene <= GeneCount; ++gene) {
        const bool held = game.Genes[gene][Clan];
        const bool bought = held && heldOnEntry_.View().find(HeldMark(gene)) == std::string_view::npos;
        gcheck[gene].Ticked = held;
        gcheck[gene].Enabled = bought || CanBuyGene(Clan, gene);
    }
}

void GeneForm::Pay(const Answer& answer) {
    if (!Adapts || !EnvBPVisible) {
        return;
    }
    int value = 0;
    const bool accepted = ParseBP(answer.Typed, value) && value <= game.BP[Clan];
    value = accepted ? value : 0;
    EnvBP = accepted ? answer.Typed : "0";
    NoteAnswer(*this, TypedInto(Answer::Kind::Pay, 0, Concat(value)), accepted);
    SetUVdiff(game.Players[Clan].MutationLevel - game.UVLevel - value - discarded_);
    resetbVisible = true;
}

void GeneForm::Reset() {
    EnvBP = "0";
    SetBoxesToHeld();
    SetDiscarded(0);
    SetUVdiff(game.Players[Clan].MutationLevel - game.UVLevel);
    resetbVisible = false;
}

void GeneForm::SetDiscarded(int points) {
    discarded_ = game.DiscardedPoints = points;
}

void GeneForm::Finish() {
    const bool refused = Adapts && UVdiff > 0;
    NoteAnswer(*this, Plain(Answer::Kind::Done), !refused);
    Pressed = refused ? Button::Refused : Button::Done;
    game.DoneFlag = refused ? 0 : 1;
    if (Adapts && !refused) {
        UVdiffVisible = EnvBPVisible = ofLabVisible = resetbVisible = false;
        BPlabelVisible = true;
    }
}

int GeneForm::PointsOf(int gene) {
    return gene == GeneId("ray") ? RayCredit : game.Catalogue[gene].MutationPoints;
}

int GeneForm::UncountedBP() const {
    return UVdiff - (game.Players[Clan].MutationLevel - game.UVLevel - discarded_ - PaidBP());
}

bool GeneForm::ShowsSuggestion() const {
    const auto& given = suggestion_.GivenUp;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (IsGivenUp(gene) != (std::find(given.begin(), given.end(), gene) != given.end())) {
            return false;
        }
    }
    return PaidBP() == suggestion_.Paid && UncountedBP() == 0;
}

void GeneForm::adaptb_Click() {
    const auto& given = suggestion_.GivenUp;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (IsGivenUp(gene) != (std::find(given.begin(), given.end(), gene) != given.end())) {
            gcheck_Click(gene);
        }
    }
    if (EnvBPVisible && (PaidBP() != suggestion_.Paid || UncountedBP() != 0)) {
        EnvBP_Change(Concat(suggestion_.Paid));
    }
}

int GeneForm::PaidBP() const {
    int value = 0;
    return ParseBP(EnvBP, value) ? std::clamp(value, 0, game.BP[Clan]) : 0;
}

}  // namespace plasmos
