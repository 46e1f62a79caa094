#!/usr/bin/env bash
# Installs the MCP client SDKs the tests drive the real binary with: Node.js
# and npm from Debian when the machine has none, then the exact versions
# pinned in tests/mcp-clients/package-lock.json.
set -euo pipefail
cd "$(dirname "$0")/.."

if ! command -v node >/dev/null || ! command -v npm >/dev/null; then
  echo "Installing Node.js and npm from Debian for the MCP client tests"
  sudo=()
  if ((EUID != 0)); then
    sudo=(sudo)
  fi
  "${sudo[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -qq --no-install-recommends nodejs npm >/dev/null
fi

clients=tests/mcp-clients
stamp="$clients/node_modules/.package-lock.json"
if [[ ! -f "$stamp" || "$clients/package-lock.json" -nt "$stamp" ]]; then
  echo "Installing the MCP client SDKs (npm ci in $clients)"
  npm ci --prefix "$clients" --no-audit --no-fund --loglevel=error
fi
