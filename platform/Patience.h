// Questions to the system that may never be answered.
#pragma once

#include <atomic>
#include <chrono>
#include <future>
#include <optional>
#include <system_error>
#include <thread>
#include <type_traits>
#include <utility>

namespace kestedit {

/// Questions under way, those included that nobody waits for any more. A mount that never answers must not cost a
/// thread for every question put to it.
inline std::atomic<int> questionsUnderWay{0};
inline constexpr int mostQuestions = 8;

/// What `ask` returns, or nothing when that takes longer than `patience` or too many earlier questions are still open.
/// `ask` runs in a thread of its own and may outlive this call, so it owns all that it uses; it must not throw.
template <class Ask>
[[nodiscard]] std::optional<std::invoke_result_t<Ask>> answerWithin(std::chrono::milliseconds patience, Ask ask) {
    using Answer = std::invoke_result_t<Ask>;
    if (questionsUnderWay.fetch_add(1) >= mostQuestions) {
        --questionsUnderWay;
        return std::nullopt;
    }
    std::packaged_task<Answer()> task([ask = std::move(ask)] {
        Answer answer = ask();
        --questionsUnderWay;
        return answer;
    });
    std::future<Answer> answer = task.get_future();
    try {
        std::thread(std::move(task)).detach();
    } catch (const std::system_error&) {
        --questionsUnderWay;
        return std::nullopt;
    }
    if (answer.wait_for(patience) != std::future_status::ready) return std::nullopt;
    return answer.get();
}

}  // namespace kestedit
