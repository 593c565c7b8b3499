#!/usr/bin/env bash
# make_sites.sh COUNT ADDRESS [LAST_ADDRESS]: prints a site database's source with COUNT sites, all of them forms at
# ADDRESS, the last one at LAST_ADDRESS if that is given.
set -euo pipefail

count=$1
echo '{"version": 1, "sites": ['
for ((i = 1; i <= count; i++)); do
    address=$2
    comma=,
    ((i < count)) || { comma='' address=${3-$2}; }
    printf '{"name": "Site %d.", "type": "search engine", "method": "post", "action": "%s", ' "$i" "$address"
    # shellcheck disable=SC2016
    printf '"query": "%s"}%s\n' '\"url=\" & txtUrlText & \"&title=\" & txtTitleText & \"&mail=\" & txtEmailText' "$comma"
done
echo ']}'
