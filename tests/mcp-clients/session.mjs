// One full session against `vexel mcp`, shared by the SDK client tests:
// list the tools, call all eight and ping, asserting on every answer.
import assert from 'node:assert/strict';
import net from 'node:net';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';

export const toolNames = [
  'system_status', 'top_apps', 'app_processes', 'history', 'spikes',
  'dev_servers', 'listening_ports', 'docker_containers',
];

// The server's environment: an empty data folder of the test's own.
export function serverEnvironment() {
  const dataDir = mkdtempSync(join(tmpdir(), 'vexel-mcp-client-'));
  return { env: { ...process.env, VEXEL_DATA_DIR: dataDir }, cleanup: () => rmSync(dataDir, { recursive: true, force: true }) };
}

// A listener on a free loopback port, for listening_ports to find.
export async function openListener() {
  const server = net.createServer();
  await new Promise((resolve) => server.listen(0, '127.0.0.1', resolve));
  return server;
}

function reportOf(result) {
  assert.equal(result.isError, false, JSON.stringify(result));
  assert.equal(result.content.length, 1);
  assert.equal(result.content[0].type, 'text');
  return JSON.parse(result.content[0].text);
}

function failureOf(result) {
  assert.equal(result.isError, true, JSON.stringify(result));
  return result.content[0].text;
}

export async function exercise(client, listener) {
  assert.equal(client.getServerVersion().name, 'vexel');
  assert.equal(client.getServerVersion().title, 'Vexel');
  assert.match(client.getInstructions(), /^Read-only system monitor for this computer/);
  assert.ok(client.getServerCapabilities().tools);

  const { tools } = await client.listTools();
  assert.equal(tools.length, 8);
  assert.deepEqual(tools.map((tool) => tool.name), toolNames);
  for (const tool of tools) {
    assert.equal(tool.annotations.readOnlyHint, true, tool.name);
    assert.equal(tool.annotations.destructiveHint, false, tool.name);
    assert.equal(tool.inputSchema.type, 'object', tool.name);
  }

  const status = reportOf(await client.callTool({ name: 'system_status', arguments: {} }));
  assert.ok(status.cpu.cores >= 1);
  assert.equal(status.cpu.per_core_percent.length, status.cpu.cores);
  assert.ok(status.memory.total_bytes > 0);
  assert.ok(status.processes.count > 0);
  assert.match(status.time, /^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ$/);

  const top = reportOf(await client.callTool({ name: 'top_apps', arguments: { sort: 'memory', limit: 3 } }));
  assert.equal(top.sort, 'memory');
  assert.ok(top.apps.length >= 1 && top.apps.length <= 3);
  for (let i = 1; i < top.apps.length; ++i)
    assert.ok(top.apps[i - 1].memory_bytes >= top.apps[i].memory_bytes);

  const app = reportOf(await client.callTool({ name: 'app_processes', arguments: { name: top.apps[0].name } }));
  assert.equal(app.name, top.apps[0].name);
  assert.equal(app.process_list.length, app.processes);
  assert.equal(failureOf(await client.callTool({ name: 'app_processes', arguments: { name: '' } })),
    'An app name is needed.');

  const noHistory = 'Vexel has no history yet. Open Vexel and leave it running.';
  assert.equal(failureOf(await client.callTool({ name: 'history', arguments: { range: 'week' } })), noHistory);
  assert.equal(failureOf(await client.callTool({ name: 'spikes', arguments: { hours: 12 } })), noHistory);

  const servers = reportOf(await client.callTool({ name: 'dev_servers', arguments: {} }));
  assert.ok(Array.isArray(servers.projects));
  assert.match(servers.note, /^Read-only\./);

  const ports = reportOf(await client.callTool({ name: 'listening_ports', arguments: {} }));
  const port = listener.address().port;
  const mine = ports.listening.find((entry) => entry.port === port);
  assert.ok(mine, `port ${port} not in ${JSON.stringify(ports.listening)}`);
  assert.equal(mine.pid, process.pid);
  assert.equal(mine.family, 'IPv4');
  assert.equal(mine.reachable_from_network, false);

  const docker = reportOf(await client.callTool({ name: 'docker_containers', arguments: {} }));
  assert.ok(['not_installed', 'not_running', 'running'].includes(docker.state));

  assert.deepEqual(await client.ping(), {});
}
