// One line of input to the MCP server: whatever arrives, the answer is nothing
// or one compact JSON-RPC 2.0 object on one line, and only a request is answered.

#include "FuzzInput.h"

#include "mcp/MCPServer.h"
#include "synth/DemoWorld.h"

#include <nlohmann/json.hpp>

#include <filesystem>

namespace {

vexel::MCPServer& server()
{
    static vexel::DemoWorld world;
    static vexel::VexelService service(
        vexel::VexelPaths(std::filesystem::temp_directory_path() / "vexel-fuzz-no-data"), vexel::TimeZone::fixed(0),
        [] { return world.now(); }, [] { return world.advancingMonitor(1); }, vexel::VexelService::Settle::onTheClock,
        vexel::Platform::macOS);
    static vexel::MCPServer mcp(service);
    return mcp;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string line(fuzzText(data, size));
    if (line.find('\n') != std::string::npos)
        return 0; // the server splits its input at newlines first
    const auto answer = server().handle(line);
    if (!answer)
        return 0;
    require(answer->find('\n') == std::string::npos);
    const auto reply = nlohmann::json::parse(*answer, nullptr, false);
    require(reply.is_object() && reply.value("jsonrpc", "") == "2.0" && reply.contains("id"));
    require(reply.contains("result") != reply.contains("error"));
    return 0;
}
