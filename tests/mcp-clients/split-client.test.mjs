// The newer split client package (@modelcontextprotocol/client) drives `vexel mcp`
// with version negotiation on "auto": it probes with server/discover first and
// falls back to initialize when the server answers "method not found".
// Usage: node split-client.test.mjs /path/to/vexel
import { Client } from '@modelcontextprotocol/client';
import { StdioClientTransport } from '@modelcontextprotocol/client/stdio';
import { exercise, openListener, serverEnvironment } from './session.mjs';

const vexel = process.argv[2];
const { env, cleanup } = serverEnvironment();
const listener = await openListener();
const transport = new StdioClientTransport({ command: vexel, args: ['--mcp'], env, stderr: 'pipe' });
let stderr = '';
transport.stderr?.on('data', (chunk) => { stderr += chunk; });
const client = new Client({ name: 'vexel-split-test', version: '1.0.0' }, { versionNegotiation: { mode: 'auto' } });
try {
  await client.connect(transport);
  await exercise(client, listener);
  await client.close();
  if (stderr !== '') throw new Error(`the server wrote to standard error: ${stderr}`);
  console.log('split client (auto negotiation): 8 tools called, ping answered');
} finally {
  listener.close();
  cleanup();
}
