#!/usr/bin/env bash
# Sets up, builds, makes an empty store beside the program when there is none,
# and starts veroxia.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
# Never touches an existing store.
build/bin/veroxia-mkstore build/bin
exec build/bin/veroxia
