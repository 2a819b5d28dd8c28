#!/bin/sh
# install.sh PYTHON ENVIRONMENT BUILD: a fresh environment that has the build's wheel.
set -eu
"$1" -m venv --clear --without-pip --system-site-packages "$2"
"$2/bin/python" -m pip install --no-index --no-deps --quiet "$3"/velor-*.whl
