#!/usr/bin/env bash
# Refreshes the seed corpus of fuzz_record_parser from the demo daemon's real answers. Each seed
# is one byte that picks the parser (the order of the fuzzer's table) followed by the body.
# Usage: fuzz/capture-corpus.sh [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
daemon=$build/demo/tovra-demo-daemon ctl=$build/src/ctl/tovra-ctl
out=fuzz/corpus/record_parser
work=$(mktemp -d)
"$daemon" --socket "$work/s" >"$work/daemon.log" 2>&1 &
pid=$!
trap 'kill $pid 2>/dev/null; wait 2>/dev/null; rm -rf "$work"' EXIT
until grep -q "listening on" "$work/daemon.log"; do sleep 0.05; done

n=0
# seed PARSER-INDEX NAME METHOD PATH [BODY]: the body of one answer, after the raw headers.
seed() {
    local index=$1 name=$2
    shift 2
    printf "\\$(printf '%03o' "$index")" >"$out/$name"
    "$ctl" --socket "$work/s" raw "$@" | sed '1,/^\r\{0,1\}$/d' >>"$out/$name"
    n=$((n + 1))
}
rm -rf "$out" && mkdir -p "$out"
seed 0 status-signed-out GET /v1/status
seed 0 login POST /v1/session/login '{"username":"demo@tovra.invalid","password":"demo","remember_me":false}'
seed 0 status GET /v1/status
seed 1 nodes GET /v1/nodes
seed 2 groups GET /v1/nodes/groups
seed 3 user GET /v1/user
seed 4 mode POST /v1/mode '{"transport":"auto","policy":"split"}'
seed 5 kill-switch GET /v1/kill-switch
seed 6 update POST /v1/gui/update/check '{"version":"0.2.0"}'
seed 7 download-idle GET /v1/gui/update/download
seed 7 download-start POST /v1/gui/update/download '{"version":"0.3.0","expected_version_num":3000}'
seed 8 split-rules GET '/v1/split/rules?kind=direct'
seed 9 split-import POST /v1/split/rules/import '{"kind":"direct","content":"example.com\n# note\n10.0.0.0/8\n"}'
seed 10 split-dns GET /v1/split/dns
seed 11 purchase GET '/v1/account/purchase-url?lang=en'
seed 12 config-paths GET /v1/config/path
seed 13 api-url GET /v1/config/api-url
seed 14 auto-connect POST /v1/config/auto-connect '{"auto_connect":"last"}'
seed 15 language GET /v1/config/language
seed 16 proxy-listen POST /v1/proxy/listen '{"proxy_listeners":[{"name":"local-socks","scheme":"socks5","address":"127.0.0.1:1080"}]}'
seed 17 version GET /v1/version
seed 17 repair POST /v1/vpn/repair '{}'
seed 0 connect POST /v1/connect '{}'
echo "$n seeds in $out"
