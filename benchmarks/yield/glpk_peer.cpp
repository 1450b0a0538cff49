#include "glpk_peer.h"

#include <glpk.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace kalvane::bench {
namespace {

constexpr double kTiny = 1e-6;

/// Pieces of each length on one bar.
using Pattern = std::vector<int>;

class Peer {
  public:
    Peer(int stock, const std::map<int, int>& demand) : stock_(stock), problem_(glp_create_prob()) {
        glp_term_out(GLP_OFF);
        for (const auto& [width, count] : demand) {
            widths_.push_back(width);
            counts_.push_back(count);
        }
        glp_set_obj_dir(problem_, GLP_MIN);
        glp_add_rows(problem_, static_cast<int>(widths_.size()));
        for (std::size_t i = 0; i < widths_.size(); ++i) {
            glp_set_row_bnds(problem_, static_cast<int>(i) + 1, GLP_LO, counts_[i], 0);
            Pattern alone(widths_.size());
            alone[i] = Most(i);
            AddPattern(alone);
        }
    }
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    ~Peer() { glp_delete_prob(problem_); }

    double SolveProgramme() {
        glp_smcp options;
        glp_init_smcp(&options);
        options.msg_lev = GLP_MSG_OFF;
        for (;;) {
            if (glp_simplex(problem_, &options) != 0) std::abort();
            std::vector<double> prices;
            for (std::size_t i = 0; i < widths_.size(); ++i) {
                prices.push_back(glp_get_row_dual(problem_, static_cast<int>(i) + 1));
            }
            const Pattern best = BestPattern(prices);
            double value = 0;
            for (std::size_t i = 0; i < prices.size(); ++i) value += prices[i] * best[i];
            if (value <= 1 + kTiny) return glp_get_obj_val(problem_);
            AddPattern(best);
        }
    }

    PeerPlan SolveWhole(int seconds) {
        for (int column = 1; column <= glp_get_num_cols(problem_); ++column) {
            glp_set_col_kind(problem_, column, GLP_IV);
        }
        glp_iocp options;
        glp_init_iocp(&options);
        options.msg_lev = GLP_MSG_OFF;
        options.tm_lim = seconds * 1000;
        const int ended = glp_intopt(problem_, &options);
        const int status = glp_mip_status(problem_);
        PeerPlan plan;
        plan.isProven = ended == 0 && status == GLP_OPT;
        if (status != GLP_OPT && status != GLP_FEAS) return plan;
        plan.bars = std::llround(glp_mip_obj_val(problem_));
        CheckPlan(plan.bars);
        return plan;
    }

  private:
    int Most(std::size_t i) const { return std::min(counts_[i], stock_ / widths_[i]); }

    void AddPattern(const Pattern& pattern) {
        patterns_.push_back(pattern);
        const int column = glp_add_cols(problem_, 1);
        glp_set_obj_coef(problem_, column, 1);
        glp_set_col_bnds(problem_, column, GLP_LO, 0, 0);
        std::vector<int> rows{0};
        std::vector<double> values{0};
        for (std::size_t i = 0; i < pattern.size(); ++i) {
            if (pattern[i] == 0) continue;
            rows.push_back(static_cast<int>(i) + 1);
            values.push_back(pattern[i]);
        }
        glp_set_mat_col(problem_, column, static_cast<int>(rows.size()) - 1, rows.data(), values.data());
    }

    /// The pattern of the highest price: length by length, for each room the best number of pieces.
    Pattern BestPattern(const std::vector<double>& prices) const {
        const auto rooms = static_cast<std::size_t>(stock_) + 1;
        std::vector<double> best(rooms);
        std::vector<std::vector<int>> pieces;
        for (std::size_t i = 0; i < widths_.size(); ++i) {
            std::vector<double> with = best;
            std::vector<int> taken(rooms);
            const auto width = static_cast<std::size_t>(widths_[i]);
            for (int n = 1; n <= Most(i) && prices[i] > 0; ++n) {
                const std::size_t used = width * static_cast<std::size_t>(n);
                for (std::size_t room = used; room < rooms; ++room) {
                    if (best[room - used] + n * prices[i] <= with[room]) continue;
                    with[room] = best[room - used] + n * prices[i];
                    taken[room] = n;
                }
            }
            best.swap(with);
            pieces.push_back(std::move(taken));
        }
        Pattern pattern(widths_.size());
        std::size_t room = rooms - 1;
        for (std::size_t i = widths_.size(); i-- > 0;) {
            pattern[i] = pieces[i][room];
            room -= static_cast<std::size_t>(widths_[i]) * static_cast<std::size_t>(pattern[i]);
        }
        return pattern;
    }

    void CheckPlan(std::int64_t bars) const {
        std::vector<std::int64_t> cut(widths_.size());
        std::int64_t total = 0;
        for (std::size_t p = 0; p < patterns_.size(); ++p) {
            const auto times = std::llround(glp_mip_col_val(problem_, static_cast<int>(p) + 1));
            total += times;
            int used = 0;
            for (std::size_t i = 0; i < widths_.size(); ++i) {
                cut[i] += times * patterns_[p][i];
                used += widths_[i] * patterns_[p][i];
            }
            if (used > stock_) Fail("a pattern longer than the bar");
        }
        if (total != bars) Fail("bars that are not counted");
        for (std::size_t i = 0; i < widths_.size(); ++i) {
            if (cut[i] < counts_[i]) Fail("pieces that are not cut");
        }
    }

    static void Fail(const char* what) {
        std::fprintf(stderr, "the peer's plan has %s\n", what);
        std::exit(1);
    }

    int stock_;
    glp_prob* problem_;
    std::vector<int> widths_;
    std::vector<int> counts_;
    std::vector<Pattern> patterns_;
};

}  // namespace

PeerPlan SolveWithGlpk(int stock, const std::map<int, int>& demand, int seconds) {
    Peer peer(stock, demand);
    const double optimum = peer.SolveProgramme();
    PeerPlan plan = peer.SolveWhole(seconds);
    plan.bound = static_cast<std::int64_t>(std::ceil(optimum - kTiny));
    return plan;
}

}  // namespace kalvane::bench
