// `vexel mcp` at the level of lines, where SDK clients are forgiving: exactly
// one line per request, in order, with the request's id; nothing for blank
// lines and notifications; nothing on standard error; exit 0 at end of input.
// Usage: node raw-lines.test.mjs /path/to/vexel
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { serverEnvironment } from './session.mjs';

const vexel = process.argv[2];
const { env, cleanup } = serverEnvironment();

// Requests and what each must get back (undefined: no line at all).
const exchanges = [
  ['{"jsonrpc":"2.0","id":"probe","method":"server/discover","params":{}}',
    { id: 'probe', error: { code: -32601, message: 'Method not found: server/discover' } }],
  ['{"jsonrpc":"2.0","id":0,"method":"tools/list"}', { id: 0, tools: 8 }],
  ['{"jsonrpc":"2.0","id":1,"method":"ping"}', { id: 1, result: {} }],
  ['', undefined],
  ['   ', undefined],
  ['{"jsonrpc":"2.0","id":2,"method":"initialize","params":{"protocolVersion":"2025-11-25","capabilities":{}}}',
    { id: 2, protocolVersion: '2025-06-18' }],
  ['{"jsonrpc":"2.0","method":"notifications/initialized"}\r', undefined],
  ['{"jsonrpc":"2.0","id":"two","method":"initialize","params":{"protocolVersion":"2024-11-05"}}',
    { id: 'two', protocolVersion: '2024-11-05' }],
  ['not json', { id: null, error: { code: -32700, message: 'Parse error' } }],
  ['[]', { id: null, error: { code: -32600, message: 'Invalid Request' } }],
  ['{"jsonrpc":"2.0","id":3,"method":"tools/call","params":{"name":"system_status"}}', { id: 3, tool: true }],
  ['{"jsonrpc":"2.0","id":4.5,"method":"tools/call","params":{"name":"nope"}}',
    { id: 4.5, error: { code: -32602, message: 'Unknown tool: nope' } }],
  ['{"jsonrpc":"2.0","id":5,"method":"resources/list"}', { id: 5, result: { resources: [] } }],
];

// Keys sorted at every level, as the server promises.
function sorted(value) {
  if (Array.isArray(value)) return value.map(sorted);
  if (value && typeof value === 'object')
    return Object.fromEntries(Object.keys(value).sort().map((key) => [key, sorted(value[key])]));
  return value;
}

const child = spawn(vexel, ['mcp'], { env, stdio: ['pipe', 'pipe', 'pipe'] });
let out = '';
let err = '';
child.stdout.on('data', (chunk) => { out += chunk; });
child.stderr.on('data', (chunk) => { err += chunk; });
const exited = new Promise((resolve) => child.on('close', resolve));
// The last line has no newline: the end of input ends it.
child.stdin.end(exchanges.map(([line]) => line).join('\n'));
const status = await exited;

try {
  assert.equal(status, 0);
  assert.equal(err, '');
  assert.ok(out.endsWith('\n'));
  const lines = out.slice(0, -1).split('\n');
  const expected = exchanges.map(([, answer]) => answer).filter((answer) => answer !== undefined);
  assert.equal(lines.length, expected.length, out);
  lines.forEach((line, index) => {
    const message = JSON.parse(line);
    const want = expected[index];
    assert.equal(line, JSON.stringify(sorted(message)), 'compact, keys sorted');
    assert.equal(message.jsonrpc, '2.0');
    assert.deepEqual(message.id, want.id);
    if (want.error) assert.deepEqual(message.error, want.error);
    if (want.result) assert.deepEqual(message.result, want.result);
    if (want.tools) assert.equal(message.result.tools.length, want.tools);
    if (want.protocolVersion) assert.equal(message.result.protocolVersion, want.protocolVersion);
    if (want.tool) assert.ok(JSON.parse(message.result.content[0].text).cpu.cores >= 1);
  });
  console.log(`raw lines: ${lines.length} answers to ${exchanges.length} lines, in order`);
} finally {
  cleanup();
}
