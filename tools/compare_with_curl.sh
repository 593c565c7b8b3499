#!/usr/bin/env bash
# compare_with_curl.sh BUILD: every behaviour of the practice web, fetched with curl and with the program's own client,
# side by side: outcome, saved bytes, time. Fails where they differ and compare_with_curl/differences.txt has no reason.
set -euo pipefail
exec "$1/bin/compare_with_curl" "$(dirname "$(readlink -f "$0")")/compare_with_curl/differences.txt"
