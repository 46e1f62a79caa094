#include "mcp/MCPServer.h"

#include "io/Output.h"
#include "mcp/MCPTools.h"
#include "text/TextScan.h"

#include <exception>

namespace vexel {

namespace {

using nlohmann::json;

std::string compact(const json& value)
{
    return value.dump(-1, ' ', false, json::error_handler_t::replace);
}

json success(const json& id, json result)
{
    return {{"jsonrpc", "2.0"}, {"id", id}, {"result", std::move(result)}};
}

json failure(const json& id, int code, const std::string& message)
{
    return {{"jsonrpc", "2.0"}, {"id", id}, {"error", {{"code", code}, {"message", message}}}};
}

json textResult(const std::string& text, bool isError)
{
    return {{"content", json::array({{{"type", "text"}, {"text", text}}})}, {"isError", isError}};
}

std::string instructions(Platform platform)
{
    return "Read-only system monitor for this " + machineWord(platform)
        + " (the Vexel app): CPU, memory, disk, network, GPU, battery and thermal state; apps with all their helper "
          "processes grouped; history up to a year with spikes and the app behind them; developer servers by project "
          "with their ports; Docker containers. Vexel never quits or stops anything from here \u2014 if something "
          "should be stopped, tell the user and let them do it in Vexel (it asks first).";
}

enum class LineRead { line, tooLong, end };

// One line of input without its newline, kept only up to the cap: the rest
// of a longer line is read and dropped.
LineRead readLine(std::FILE* input, std::string& line)
{
    line.clear();
    bool tooLong = false;
    int c = 0;
    while ((c = std::fgetc(input)) != EOF) {
        if (c == '\n')
            return tooLong ? LineRead::tooLong : LineRead::line;
        if (line.size() < MCPServer::lineCap)
            line += static_cast<char>(c);
        else
            tooLong = true;
    }
    if (tooLong)
        return LineRead::tooLong;
    return line.empty() ? LineRead::end : LineRead::line;
}

} // namespace

MCPServer::MCPServer(VexelService& service)
    : m_service(service)
{
}

const std::vector<std::string>& MCPServer::supportedVersions()
{
    static const std::vector<std::string> versions{"2025-06-18", "2025-03-26", "2024-11-05"};
    return versions;
}

void MCPServer::runStdio(std::FILE* input, std::FILE* output)
{
    std::string line;
    for (LineRead read = readLine(input, line); read != LineRead::end; read = readLine(input, line)) {
        const auto answer = read == LineRead::tooLong ? std::optional(tooLong()) : handle(line);
        if (answer)
            (void)Output::writeAll(::fileno(output), *answer + "\n"); // a client gone ends with its input
    }
}

std::string MCPServer::tooLong()
{
    return compact(failure(
        nullptr, -32600, "Invalid Request: a message longer than " + std::to_string(lineCap) + " bytes is not read"));
}

std::optional<std::string> MCPServer::handle(const std::string& line)
{
    const std::string_view trimmed = TextScan::trim(line);
    if (trimmed.empty())
        return std::nullopt;
    const json message = json::parse(trimmed, nullptr, false);
    if (message.is_discarded())
        return compact(failure(nullptr, -32700, "Parse error"));
    if (!message.is_object())
        return compact(failure(nullptr, -32600, "Invalid Request"));
    const auto response = respond(message);
    return response ? std::optional(compact(*response)) : std::nullopt;
}

std::optional<json> MCPServer::respond(const json& message)
{
    const auto idField = message.find("id");
    const json id = idField != message.end() ? *idField : json();
    const auto methodField = message.find("method");
    if (methodField == message.end() || !methodField->is_string())
        return failure(id, -32600, "Invalid Request");
    if (idField == message.end())
        return std::nullopt;
    const std::string method = methodField->get<std::string>();
    const auto paramsField = message.find("params");
    const json params = paramsField != message.end() && paramsField->is_object() ? *paramsField : json::object();

    if (method == "initialize")
        return success(id, initialize(params));
    if (method == "ping")
        return success(id, json::object());
    if (method == "tools/list")
        return success(id, {{"tools", MCPTools::table(m_service.platform())}});
    if (method == "tools/call")
        return toolsCall(id, params);
    if (method == "resources/list")
        return success(id, {{"resources", json::array()}});
    if (method == "prompts/list")
        return success(id, {{"prompts", json::array()}});
    return failure(id, -32601, "Method not found: " + method);
}

json MCPServer::initialize(const json& params) const
{
    const auto& versions = supportedVersions();
    const auto requested = params.find("protocolVersion");
    std::string answer = versions.front();
    if (requested != params.end() && requested->is_string()
        && std::find(versions.begin(), versions.end(), requested->get<std::string>()) != versions.end())
        answer = requested->get<std::string>();
    return {{"protocolVersion", answer}, {"capabilities", {{"tools", json::object()}}},
        {"serverInfo", {{"name", "vexel"}, {"title", "Vexel"}, {"version", version}}},
        {"instructions", instructions(m_service.platform())}};
}

json MCPServer::toolsCall(const json& id, const json& params)
{
    const auto nameField = params.find("name");
    if (nameField == params.end() || !nameField->is_string())
        return failure(id, -32602, "Missing tool name");
    const std::string name = nameField->get<std::string>();
    if (!MCPTools::known(name))
        return failure(id, -32602, "Unknown tool: " + name);
    const auto argumentsField = params.find("arguments");
    const json arguments
        = argumentsField != params.end() && argumentsField->is_object() ? *argumentsField : json::object();
    try {
        return success(id, textResult(compact(MCPTools::call(m_service, name, arguments)), false));
    } catch (const std::exception& error) {
        return success(id, textResult(error.what(), true));
    }
}

} // namespace vexel
