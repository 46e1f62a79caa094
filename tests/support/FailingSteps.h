#pragma once

#include "history/Sqlite.h"

#include <cstring>

namespace vexel::testing {

// While it lives, the steps of history statements whose SQL starts with
// `prefix` fail with an I/O error once `goodSteps` of them went well; other
// statements step as usual. One at a time.
class FailingSteps {
public:
    FailingSteps(const char* prefix, int goodSteps)
    {
        s_prefix = prefix;
        s_goodSteps = goodSteps;
        Sqlite::replaceStep(step);
    }
    ~FailingSteps() { Sqlite::replaceStep(nullptr); }
    FailingSteps(const FailingSteps&) = delete;
    FailingSteps& operator=(const FailingSteps&) = delete;

private:
    static int step(sqlite3_stmt* statement)
    {
        if (std::strncmp(::sqlite3_sql(statement), s_prefix, std::strlen(s_prefix)) == 0 && s_goodSteps-- <= 0)
            return SQLITE_IOERR;
        return ::sqlite3_step(statement);
    }

    static inline const char* s_prefix = "";
    static inline int s_goodSteps = 0;
};

} // namespace vexel::testing
