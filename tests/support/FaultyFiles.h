#pragma once

namespace vexel::testing::FaultyFiles {

// A file layer under SQLite, installed as its default before main runs in
// every test program that links this file: it passes each call through to
// the system's layer, until a test tells it to fail reads. Every history
// store of the program, the read-only ones included, reads through it.

// From now on the first `goodReads` reads of any database or log file
// succeed, and every read after them fails with an I/O error.
void failReadsAfter(int goodReads);

// Reads succeed again.
void heal();

// Fails reads after `goodReads` for as long as it lives.
class ReadFailure {
public:
    explicit ReadFailure(int goodReads) { failReadsAfter(goodReads); }
    ~ReadFailure() { heal(); }
    ReadFailure(const ReadFailure&) = delete;
    ReadFailure& operator=(const ReadFailure&) = delete;
};

} // namespace vexel::testing::FaultyFiles
