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

    static json error(const json& id, int code, const std::string& message)
    {
        return {{"jsonrpc", "2.0"}, {"id", id}, {"error", {{"code", code}, {"message", message}}}};
    }

    TempFolder folder{"vexel-mcp"};
    DemoService demo{folder.path()};
    MCPServer server{demo.service};
};

} // namespace

TEST_F(MCP, EveryErrorRow)
{
    EXPECT_EQ(answer("{not json"), error(nullptr, -32700, "Parse error"));
    EXPECT_EQ(answer("[1,2]"), error(nullptr, -32600, "Invalid Request"));
    EXPECT_EQ(answer("42"), error(nullptr, -32600, "Invalid Request"));
    EXPECT_EQ(answer(R"({"jsonrpc":"2.0","id":5})"), error(5, -32600, "Invalid Request"));
    EXPECT_EQ(answer(R"({"jsonrpc":"2.0","id":6,"method":7})"), error(6, -32600, "Invalid Request"));
    EXPECT_EQ(answer(R"({"jsonrpc":"2.0","method":7})"), error(nullptr, -32600, "Invalid Request"));
    EXPECT_EQ(answer(R"({"jsonrpc":"2.0","id":7,"method":"nope/nothing"})"),
        error(7, -32601, "Method not found: nope/nothing"));
    EXPECT_EQ(answer(R"({"jsonrpc":"2.0","id":8,"method":"tools/call"})"), error(8, -32602, "Missing tool name"));
    EXPECT_EQ(answer(R"({"jsonrpc":"2.0","id":9,"method":"tools/call","params":{"name":3}})"),
        error(9, -32602, "Missing tool name"));
    EXPECT_EQ(answer(R"({"jsonrpc":"2.0","id":10,"method":"tools/call","params":{"name":"kill_app"}})"),
        error(10, -32602, "Unknown tool: kill_app"));
    // A failing tool is a successful response that says so.
    EXPECT_EQ(
        answer(R"({"jsonrpc":"2.0","id":11,"method":"tools/call","params":{"name":"app_processes","arguments":{}}})"),
        (json{{"jsonrpc", "2.0"}, {"id", 11},
            {"result", {{"content", {{{"type", "text"}, {"text", "An app name is needed."}}}}, {"isError", true}}}}));
    const json history
        = answer(R"({"jsonrpc":"2.0","id":12,"method":"tools/call","params":{"name":"history","arguments":[]}})");
    EXPECT_EQ(history["result"]["isError"], true);
    EXPECT_EQ(history["result"]["content"][0]["text"], "Vexel has no history yet. Open Vexel and leave it running.");
    // A broken history file is a tool error that says so, never an empty history.
    writeCorruptHistory(folder.path() / "history.sqlite");
    for (const char* tool : {"history", "spikes"}) {
        const json broken = answer(
            R"({"jsonrpc":"2.0","id":13,"method":"tools/call","params":{"name":")" + std::string(tool) + R"("}})");
        EXPECT_EQ(broken["result"]["isError"], true) << tool;
        EXPECT_EQ(broken["result"]["content"][0]["text"], "Couldn't open the history: file is not a database");
    }
}

TEST_F(MCP, IdsEchoedNotificationsAndBlankLinesSilent)
{
    for (const json& id : {json(0), json("abc"), json(-3), json(2.5), json(nullptr), json({{"k", 1}})}) {
        const json reply = answer(json{{"jsonrpc", "2.0"}, {"id", id}, {"method", "ping"}}.dump());
        EXPECT_EQ(reply, (json{{"jsonrpc", "2.0"}, {"id", id}, {"result", json::object()}})) << id;
    }
    EXPECT_TRUE(answer("").is_null());
    EXPECT_TRUE(answer("   \t  ").is_null());
    EXPECT_TRUE(answer(R"({"jsonrpc":"2.0","method":"notifications/initialized"})").is_null());
    EXPECT_TRUE(answer(R"({"jsonrpc":"2.0","method":"tools/call","params":{"name":"system_status"}})").is_null());
    EXPECT_TRUE(answer(R"({"jsonrpc":"2.0","method":"no/such"})").is_null());
    EXPECT_EQ(demo.world->processSource->served, 0); // the notification's tool call never ran
}

TEST_F(MCP, VersionNegotiationAndClientsOfOtherRevisions)
{
    const auto negotiated = [&](const std::string& params) {
        return answer(
            R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":)" + params + "}")["result"]["protocolVersion"];
    };
    EXPECT_EQ(negotiated(R"({"protocolVersion":"2024-11-05"})"), "2024-11-05");
    EXPECT_EQ(negotiated(R"({"protocolVersion":"2025-03-26"})"), "2025-03-26");
    EXPECT_EQ(negotiated(R"({"protocolVersion":"1999-01-01"})"), "2025-06-18");
    EXPECT_EQ(negotiated(R"({"protocolVersion":"2025-11-25"})"), "2025-06-18"); // newer SDKs accept it
    EXPECT_EQ(negotiated(R"({"protocolVersion":20250618})"), "2025-06-18");
    EXPECT_EQ(negotiated("[]"), "2025-06-18");
    // Clients of the 2026-07-28 revision ask first and fall back on "not found".
    EXPECT_EQ(answer(R"({"jsonrpc":"2.0","id":0,"method":"server/discover","params":{}})"),
        error(0, -32601, "Method not found: server/discover"));
    // Requests before initialize, and without params, are answered.
    const json tools = answer(R"({"jsonrpc":"2.0","id":2,"method":"tools/list"})");
    std::vector<std::string> names;
    for (const auto& tool : tools["result"]["tools"])
        names.push_back(tool["name"]);
    EXPECT_EQ(names,
        (std::vector<std::string>{"system_status", "top_apps", "app_processes", "history", "spikes", "dev_servers",
            "listening_ports", "docker_containers"}));
    // Their schemas and annotations are pinned by the golden transcript.
    EXPECT_EQ(answer(R"({"jsonrpc":"2.0","id":3,"method":"resources/list"})")["result"],
        (json{{"resources", json::array()}}));
    EXPECT_EQ(
        answer(R"({"jsonrpc":"2.0","id":4,"method":"prompts/list"})")["result"], (json{{"prompts", json::array()}}));
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
    const json refused = error(nullptr, -32600, "Invalid Request: a message longer than 4194304 bytes is not read");
    EXPECT_EQ(written, refused.dump() + "\n" + R"({"id":2,"jsonrpc":"2.0","result":{}})" + "\n");
}
