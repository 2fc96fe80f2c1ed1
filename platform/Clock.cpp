#include "platform/Clock.h"

#include <algorithm>
#include <ctime>

namespace kestedit {

LocalTime SystemClock::now() const {
    const std::time_t moment = std::time(nullptr);
    tzset();
    std::tm local{};
    localtime_r(&moment, &local);
    const Date date{std::chrono::year{local.tm_year + 1900},
                    std::chrono::month{static_cast<unsigned>(local.tm_mon + 1)},
                    std::chrono::day{static_cast<unsigned>(local.tm_mday)}};
    // A leap second would be second 60, which no time of day may hold.
    const int seconds = std::min(local.tm_sec, 59);
    return {date,
            std::chrono::hours{local.tm_hour} + std::chrono::minutes{local.tm_min} + std::chrono::seconds{seconds}};
}

}  // namespace kestedit
