// A run of works whose writes, names and syncs are traced, and what a power loss at any moment of it leaves.
#pragma once

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include "soak/soak.h"
#include "support/disk_trace.h"

namespace soak {

class Outages {
public:
    /// Does works number 1 to `works`, which have to be well.
    Outages(long works, const Work &work) : disk_(trace(works, work)) {}

    struct Moment {
        long acknowledged;  // works
        bool before_sync;   // when what was to be synced has arrived in any order, or not
    };

    /// Puts the files in place that a power loss may leave, at a moment that is drawn.
    Moment lose_power(std::mt19937 &random) const {
        using Arrived = support::Disk::Arrived;
        constexpr Arrived likely[] = {Arrived::none, Arrived::all, Arrived::names_and_sizes};
        const std::size_t moment = drawn_moment(random);
        const unsigned kind = draw(random, 12);
        const Arrived arrived = kind < std::size(likely) ? likely[kind] : Arrived::some;
        support::put_files(directories(), disk_.after(moment, arrived, static_cast<unsigned>(random())));
        const support::Files all = disk_.after(moment, Arrived::all);
        return {static_cast<long>(all.at(acknowledgements).size()),
                std::binary_search(before_syncs_.begin(), before_syncs_.end(), moment)};
    }

private:
    static constexpr char acknowledgements[] = "/tmp/outages/acknowledgements";  // a byte for each

    static std::vector<std::string> directories() {
        return {"/etc/config/systemconf/database", "/var/tmpconfig/database", "/tmp/outages"};
    }

    /// Any, or one where most is at stake: before a sync, or behind all works.
    std::size_t drawn_moment(std::mt19937 &random) const {
        const unsigned kind = draw(random, 8);
        if (kind == 0) {
            return disk_.events();
        }
        const bool before_sync = kind <= 3 && !before_syncs_.empty();
        return before_sync ? before_syncs_[random() % before_syncs_.size()] : random() % disk_.events();
    }

    static support::Disk trace(long works, const Work &work) {
        support::put_files({"/tmp/outages"}, {{acknowledgements, ""}});
        return support::trace_disk(directories(), [&] {
            std::ofstream acknowledged(acknowledgements, std::ios::app);
            for (long n = 1; n <= works; ++n) {
                if (!work(n) || !(acknowledged << '.' << std::flush)) {
                    return false;
                }
            }
            return true;
        });
    }

    const support::Disk disk_;
    const std::vector<std::size_t> before_syncs_ = disk_.events_before_syncs();
};

}  // namespace soak
