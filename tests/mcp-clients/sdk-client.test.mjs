// The official MCP TypeScript SDK (@modelcontextprotocol/sdk) drives `vexel mcp`.
// Usage: node sdk-client.test.mjs /path/to/vexel
import { Client } from '@modelcontextprotocol/sdk/client/index.js';
import { StdioClientTransport } from '@modelcontextprotocol/sdk/client/stdio.js';
import { exercise, openListener, serverEnvironment } from './session.mjs';

const vexel = process.argv[2];
const { env, cleanup } = serverEnvironment();
const listener = await openListener();
const transport = new StdioClientTransport({ command: vexel, args: ['mcp'], env, stderr: 'pipe' });
let stderr = '';
transport.stderr?.on('data', (chunk) => { stderr += chunk; });
const client = new Client({ name: 'vexel-sdk-test', version: '1.0.0' });
try {
  await client.connect(transport); // asks for 2025-11-25, accepts 2025-06-18
  await exercise(client, listener);
  await client.close();
  if (stderr !== '') throw new Error(`the server wrote to standard error: ${stderr}`);
  console.log('sdk client: 8 tools called, ping answered');
} finally {
  listener.close();
  cleanup();
}
