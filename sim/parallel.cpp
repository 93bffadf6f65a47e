// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "sim/simulate.h"

namespace plasmos {

namespace {

/// Games are handed to the jobs in packs, so that they seldom meet; a journal makes games heavy.
constexpr std::int64_t PackOfGames = 64;
constexpr std::int64_t PackWithJournals = 1;
/// How many packs a job may be ahead of the one whose results are taken next.
constexpr std::size_t PacksAhead = 4;

using Pack = std::vector<GameResult>;

/// Hands out packs of games and takes their results back in order.
class PackQueue {
public:
    PackQueue(std::int64_t games, std::int64_t packSize, std::size_t ahead)
        : games_(games), packSize_(packSize), ahead_(ahead) {}

    /// The first game of the next pack; -1: there is none.
    std::int64_t NextPack() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return stopped_ || Full() < ahead_; });
        const std::int64_t first = handedOut_ * packSize_;
        if (stopped_ || first >= games_) {
            return -1;
        }
        slots_.emplace_back();
        ++handedOut_;
        return first;
    }

    std::int64_t EndOf(std::int64_t first) const { return std::min(first + packSize_, games_); }

    void Deliver(std::int64_t first, Pack pack) {
        const std::lock_guard lock(mutex_);
        auto& slot = slots_[static_cast<std::size_t>(first / packSize_ - taken_)];
        slot.Games = std::move(pack);
        slot.Done = true;
        changed_.notify_all();
    }

    /// The results of the next pack in order; an empty one: the run is over. Throws what a job ended with.
    Pack Take() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return failure_ || IsOver() || (!slots_.empty() && slots_.front().Done); });
        if (failure_) {
            std::rethrow_exception(failure_);
        }
        if (slots_.empty() || !slots_.front().Done) {
            return {};
        }
        Pack pack = std::move(slots_.front().Games);
        slots_.pop_front();
        ++taken_;
        changed_.notify_all();
        return pack;
    }

    /// No further pack is handed out.
    void Stop() {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
        changed_.notify_all();
    }

    /// A job cannot go on.
    void Fail(std::exception_ptr failure) {
        const std::lock_guard lock(mutex_);
        failure_ = std::move(failure);
        stopped_ = true;
        changed_.notify_all();
    }

private:
    struct Slot {
        Pack Games;
        bool Done = false;
    };

    std::size_t Full() const { return slots_.size(); }
    bool IsOver() const { return slots_.empty() && (stopped_ || handedOut_ * packSize_ >= games_); }

    const std::int64_t games_;
    const std::int64_t packSize_;
    const std::size_t ahead_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Slot> slots_;
    std::int64_t handedOut_ = 0;
    std::int64_t taken_ = 0;
    bool stopped_ = false;
    std::exception_ptr failure_;
};

Pack PlayPack(const SimOptions& options, std::int64_t first, std::int64_t end, const std::function<bool()>& stop) {
    Pack pack;
    pack.reserve(static_cast<std::size_t>(end - first));
    for (std::int64_t index = first; index < end && !(index > first && stop()); ++index) {
        pack.push_back(SimulateGame(options, index));
        if (!pack.back().Fault.empty()) {
            break;
        }
    }
    return pack;
}

void Work(const SimOptions& options, GameFiles* files, PackQueue& queue, const std::function<bool()>& stop) {
    try {
        PrepareThread(options, files);
        for (std::int64_t first = queue.NextPack(); first >= 0; first = queue.NextPack()) {
            queue.Deliver(first, PlayPack(options, first, queue.EndOf(first), stop));
            if (stop()) {
                queue.Stop();
            }
        }
    } catch (const std::exception&) {
        queue.Fail(std::current_exception());
    }
}

/// Hands one pack over. False: no more results are wanted, or the pack was cut short.
bool HandOver(const Pack& pack, const std::function<bool(const GameResult&)>& take) {
    return std::all_of(pack.begin(), pack.end(), take);
}

/// The jobs of a run; they end with it, however it ends.
class JobThreads {
public:
    explicit JobThreads(PackQueue& queue) : queue_(queue) {}
    ~JobThreads() {
        queue_.Stop();
        for (std::thread& job : jobs_) {
            job.join();
        }
    }
    JobThreads(const JobThreads&) = delete;
    JobThreads& operator=(const JobThreads&) = delete;

    /// Starts so many jobs, or as many as the system lets it; the number of them.
    template <class Body>
    int Start(int jobs, const Body& body) {
        jobs_.reserve(static_cast<std::size_t>(jobs));
        try {
            for (int job = 0; job < jobs; ++job) {
                jobs_.emplace_back(body);
            }
        } catch (const std::exception&) {
            // The games are played by fewer.
        }
        return static_cast<int>(jobs_.size());
    }

private:
    PackQueue& queue_;
    std::vector<std::thread> jobs_;
};

void SimulateHere(const SimOptions& options, GameFiles* files, const std::function<bool()>& stop,
                  const std::function<bool(const GameResult&)>& take) {
    PrepareThread(options, files);
    for (std::int64_t index = 0; index < options.Games && !stop(); ++index) {
        if (!take(SimulateGame(options, index))) {
            return;
        }
    }
}

}  // namespace

void SimulateGames(const SimOptions& options, GameFiles* files, const std::function<bool()>& stop,
                   const std::function<bool(const GameResult&)>& take) {
    if (options.Jobs == 1) {
        SimulateHere(options, files, stop, take);
        return;
    }
    const bool heavy = !options.Journal.empty();
    PackQueue queue(options.Games, heavy ? PackWithJournals : PackOfGames,
                    static_cast<std::size_t>(options.Jobs) * PacksAhead);
    JobThreads jobs(queue);
    if (jobs.Start(options.Jobs, [&] { Work(options, files, queue, stop); }) == 0) {
        SimulateHere(options, files, stop, take);
        return;
    }
    std::int64_t expected = 0;
    for (Pack pack = queue.Take(); !pack.empty(); pack = queue.Take()) {
        const auto full = static_cast<std::size_t>(queue.EndOf(expected) - expected);
        expected += static_cast<std::int64_t>(full);
        if (!HandOver(pack, take) || pack.size() < full) {
            return;
        }
    }
}

}  // namespace plasmos
