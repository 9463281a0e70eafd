#pragma once

#include <QList>
#include <exception>

// Runs every step, whatever the ones before did, and gives back what failed, in order, for
// the caller to report: for a routine that must get as far as it can.
template <typename... Steps> QList<std::exception_ptr> EachStep(Steps&&... steps)
{
    QList<std::exception_ptr> failures;
    auto run = [&](auto&& step) {
        try {
            step();
        } catch (const std::exception&) {
            failures << std::current_exception();
        }
    };
    (run(steps), ...);
    return failures;
}
