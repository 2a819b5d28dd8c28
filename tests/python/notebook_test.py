"""The notebook runs from its first cell to its last, and draws."""

import json
import os
import sys

import pytest

nbformat = pytest.importorskip("nbformat")
nbclient = pytest.importorskip("nbclient")
pytest.importorskip("ipykernel")
pytest.importorskip("pandas")
pytest.importorskip("matplotlib")


def test_the_notebook_runs(monkeypatch, tmp_path):
    kernel = {"argv": [sys.executable, "-m", "ipykernel_launcher", "-f", "{connection_file}"], "display_name": "velor"}
    place = tmp_path / "kernels" / "python3" / "kernel.json"
    place.parent.mkdir(parents=True)
    place.write_text(json.dumps(kernel))
    monkeypatch.setenv("JUPYTER_PATH", str(tmp_path))  # before the system's kernel, which has no package of ours
    monkeypatch.delenv("MPLBACKEND", raising=False)
    notebook = nbformat.read(os.path.join(os.environ["VELOR_SOURCES"], "examples", "velor.ipynb"), as_version=4)
    nbclient.NotebookClient(notebook, timeout=120).execute()
    outputs = [output for cell in notebook.cells for output in cell.get("outputs", [])]
    assert sum("image/png" in output.get("data", {}) for output in outputs) == 3
    assert not any(output.get("name") == "stderr" for output in outputs if "Warning" not in output.get("text", ""))
    nbformat.write(notebook, "velor.ipynb")
