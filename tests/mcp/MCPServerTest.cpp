#include "mcp/MCPServer.h"
#include "support/DemoService.h"
#include "support/Golden.h"
#include "support/HistoryFixture.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::testing;
using nlohmann::json;

namespace {

class MCP : public ::testing::Test {
protected:
    // The one line answered to `request`, parsed; null when there is none.
    json answer(const std::string& request)
    {
        const auto line = server.handle(request);
        if (!line)
            return nullptr;
        EXPECT_EQ(line->find('\n'), std::string::npos) << *line;
        const json parsed = json::parse(*line);
        EXPECT_EQ(parsed.dump(-1, ' ', false, json::error_handler_t::replace), *line) << "keys sorted, compact";
        return parsed;
    }

    TempFolder folder{"vexel-mcp"};
    DemoService demo{folder.path()};
    MCPServer server{demo.service};
};

} // namespace

// Every error row, ids of every kind echoed, silent notifications and
// blank lines, and version negotiation, kept in tests/golden/mcp: a failing
// tool is a successful response that says so, and a broken history file is
// a tool error, never an empty history.
TEST_F(MCP, OddRequestsMatchTheGoldenFile)
{
    const auto session = [&](const std::vector<std::string>& requests) {
        std::string transcript;
        for (const auto& request : requests) {
            transcript += "> " + request + "\n";
            if (const auto reply = answer(request); !reply.is_null())
                transcript += "< " + reply.dump() + "\n";
        }
        return transcript;
    };
    std::string transcript = session({
        "{not json",
        "[1,2]",
        "42",
        R"({"jsonrpc":"2.0","id":5})",
        R"({"jsonrpc":"2.0","id":6,"method":7})",
        R"({"jsonrpc":"2.0","method":7})",
        R"({"jsonrpc":"2.0","id":7,"method":"nope/nothing"})",
        R"({"jsonrpc":"2.0","id":8,"method":"tools/call"})",
        R"({"jsonrpc":"2.0","id":9,"method":"tools/call","params":{"name":3}})",
        R"({"jsonrpc":"2.0","id":10,"method":"tools/call","params":{"name":"kill_app"}})",
        R"({"jsonrpc":"2.0","id":11,"method":"tools/call","params":{"name":"app_processes","arguments":{}}})",
        R"({"jsonrpc":"2.0","id":12,"method":"tools/call","params":{"name":"history","arguments":[]}})",
        R"({"jsonrpc":"2.0","id":0,"method":"ping"})",
        R"({"jsonrpc":"2.0","id":"abc","method":"ping"})",
        R"({"jsonrpc":"2.0","id":-3,"method":"ping"})",
        R"({"jsonrpc":"2.0","id":2.5,"method":"ping"})",
        R"({"jsonrpc":"2.0","id":null,"method":"ping"})",
        R"({"jsonrpc":"2.0","id":{"k":1},"method":"ping"})",
        "",
        "   \t  ",
        R"({"jsonrpc":"2.0","method":"notifications/initialized"})",
        R"({"jsonrpc":"2.0","method":"tools/call","params":{"name":"system_status"}})",
        R"({"jsonrpc":"2.0","method":"no/such"})",
        // Clients of the 2026-07-28 revision ask first and fall back on "not found".
        R"({"jsonrpc":"2.0","id":0,"method":"server/discover","params":{}})",
        R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{"protocolVersion":"2024-11-05"}})",
        R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{"protocolVersion":"2025-03-26"}})",
        R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{"protocolVersion":"1999-01-01"}})",
        R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{"protocolVersion":"2025-11-25"}})",
        R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{"protocolVersion":20250618}})",
        R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":[]})",
        R"({"jsonrpc":"2.0","id":3,"method":"resources/list"})",
        R"({"jsonrpc":"2.0","id":4,"method":"prompts/list"})",
    });
    EXPECT_EQ(demo.world->processSource->served, 0); // the notification's tool call never ran
    writeCorruptHistory(folder.path() / "history.sqlite");
    transcript += session({R"({"jsonrpc":"2.0","id":13,"method":"tools/call","params":{"name":"history"}})",
        R"({"jsonrpc":"2.0","id":14,"method":"tools/call","params":{"name":"spikes"}})"});
    EXPECT_EQ(compareGolden("mcp/odd-requests.txt", transcript), "");
}

TEST_F(MCP, ToolArgumentsFallBackToDefaults)
{
    const auto text = [&](const std::string& name, const json& arguments) {
        const json request = {{"jsonrpc", "2.0"}, {"id", 1}, {"method", "tools/call"},
            {"params", {{"name", name}, {"arguments", arguments}}}};
        const json reply = answer(request.dump());
        EXPECT_EQ(reply["result"]["isError"], false) << reply;
        return json::parse(reply["result"]["content"][0]["text"].get<std::string>());
    };
    const json bogus = text("top_apps", {{"sort", "bogus"}, {"limit", "many"}});
    EXPECT_EQ(bogus["sort"], "cpu");
    EXPECT_EQ(bogus["apps"].size(), 10u);
    EXPECT_EQ(text("top_apps", {{"sort", "memory"}, {"limit", 3}})["apps"].size(), 3u);
    EXPECT_EQ(text("top_apps", {{"limit", 500}})["apps"].size(), text("top_apps", {{"limit", 1000}})["apps"].size());
    EXPECT_EQ(text("app_processes", {{"name", "chrome"}})["name"], "Google Chrome");
    writeHistory(folder.path() / "history.sqlite", demo.now);
    EXPECT_EQ(text("history", {{"range", "decade"}})["range"], "today");
    EXPECT_EQ(text("spikes", {{"hours", "lots"}})["hours"], 24.0);
    EXPECT_EQ(text("spikes", {{"hours", 1.5}})["hours"], 1.5);
    EXPECT_EQ(demo.world->processSource->served, 2); // every tool shares one settled frame
}

// A whole session on the demo world, kept in tests/golden/mcp.
TEST_F(MCP, TranscriptMatchesTheGoldenFile)
{
    ::setenv("TZ", "UTC", 1);
    writeHistory(folder.path() / "history.sqlite", demo.now);
    const std::vector<std::string> requests{
        R"({"jsonrpc":"2.0","id":0,"method":"initialize","params":{"protocolVersion":"2025-06-18","capabilities":{},"clientInfo":{"name":"golden","version":"1"}}})",
        R"({"jsonrpc":"2.0","method":"notifications/initialized"})",
        R"({"jsonrpc":"2.0","id":1,"method":"tools/list","params":{}})",
        R"({"jsonrpc":"2.0","id":2,"method":"tools/call","params":{"name":"system_status","arguments":{}}})",
        R"({"jsonrpc":"2.0","id":3,"method":"tools/call","params":{"name":"top_apps","arguments":{"sort":"energy","limit":5}}})",
        R"({"jsonrpc":"2.0","id":4,"method":"tools/call","params":{"name":"app_processes","arguments":{"name":"Visual Studio Code"}}})",
        R"({"jsonrpc":"2.0","id":5,"method":"tools/call","params":{"name":"history","arguments":{"range":"today"}}})",
        R"({"jsonrpc":"2.0","id":6,"method":"tools/call","params":{"name":"spikes","arguments":{"hours":12}}})",
        R"({"jsonrpc":"2.0","id":7,"method":"tools/call","params":{"name":"dev_servers"}})",
        R"({"jsonrpc":"2.0","id":8,"method":"tools/call","params":{"name":"listening_ports","arguments":{}}})",
        R"({"jsonrpc":"2.0","id":"last","method":"tools/call","params":{"name":"docker_containers","arguments":{}}})",
    };
    std::string transcript;
    for (const auto& request : requests) {
        transcript += "> " + request + "\n";
        if (const auto reply = server.handle(request))
            transcript += "< " + *reply + "\n";
    }
    EXPECT_EQ(compareGolden("mcp/transcript.txt", transcript), "");
}

// A line past the cap is answered with an error and dropped as it is read;
// the next line is served as usual.
TEST_F(MCP, ALineTooLongIsRefusedAndTheServerGoesOn)
{
    std::FILE* input = std::tmpfile();
    std::FILE* output = std::tmpfile();
    ASSERT_TRUE(input && output);
    const std::string huge = R"({"jsonrpc":"2.0","id":1,"method":"ping","params":{"pad":")"
        + std::string(MCPServer::lineCap, 'x') + "\"}}\n";
    std::fputs(huge.c_str(), input);
    std::fputs(R"({"jsonrpc":"2.0","id":2,"method":"ping"})", input);
    std::rewind(input);
    server.runStdio(input, output);
    std::rewind(output);
    std::string written;
    for (int c = 0; (c = std::fgetc(output)) != EOF;)
        written += static_cast<char>(c);
    std::fclose(input);
    std::fclose(output);
    EXPECT_EQ(written,
        R"({"error":{"code":-32600,"message":"Invalid Request: a message longer than 4194304 bytes is not read"},)"
        R"("id":null,"jsonrpc":"2.0"})"
        "\n"
        R"({"id":2,"jsonrpc":"2.0","result":{}})"
        "\n");
}
