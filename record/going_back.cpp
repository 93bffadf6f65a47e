// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/going_back.h"

#include <algorithm>

namespace plasmos {

namespace {

/// What a window gives by itself when something else has the keyboard, such as a menu.
bool GivesItself(const Input& input) {
    return input.IsAnswer() &&
           (input.Given.What == Answer::Kind::LeaveField || input.Given.What == Answer::Kind::LookAway);
}

bool HasAnswer(const InputList& inputs, std::size_t from) {
    return std::any_of(inputs.begin() + static_cast<std::ptrdiff_t>(from), inputs.end(),
                       [](const Input& input) { return input.IsAnswer() && !GivesItself(input); });
}

/// The inputs up to the latest that somebody meant.
InputList Meant(InputList inputs) {
    while (!inputs.empty() && GivesItself(inputs.back())) {
        inputs.pop_back();
    }
    return inputs;
}

}  // namespace

std::optional<std::size_t> PlaceToTakeBackTo(const GameRecorder& played, int clan) {
    const auto& places = played.Places();
    const auto found = std::find_if(places.rbegin(), places.rend(), [&](const GameRecorder::Place& place) {
        const bool own = clan == 0 || place.Clan == 0 || place.Clan == clan;
        return own && place.Inputs < played.Inputs.size() && HasAnswer(played.Inputs, place.Inputs);
    });
    return found != places.rend() ? std::optional(found->Inputs) : std::nullopt;
}

void TakenBack::Keep(const GameRecorder& played) {
    InputList inputs = played.Inputs;
    DropLeaving(inputs);
    if (Continues(Meant(inputs))) {
        return;
    }
    inputs_ = std::move(inputs);
    places_.clear();
    for (const auto& place : played.Places()) {
        places_.push_back(place.Inputs);
    }
}

bool TakenBack::Continues(const InputList& inputs) const {
    return inputs.size() <= inputs_.size() && std::equal(inputs.begin(), inputs.end(), inputs_.begin());
}

std::optional<std::size_t> TakenBack::PlaceToGoOnTo(const InputList& inputs) const {
    const InputList meant = Meant(inputs);
    if (meant.size() >= inputs_.size() || !Continues(meant)) {
        return std::nullopt;
    }
    const auto next = std::upper_bound(places_.begin(), places_.end(), meant.size());
    return next != places_.end() ? *next : inputs_.size();
}

InputList TakenBack::InputsTo(std::size_t place) const {
    return {inputs_.begin(), inputs_.begin() + static_cast<std::ptrdiff_t>(std::min(place, inputs_.size()))};
}

}  // namespace plasmos
