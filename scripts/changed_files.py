"""What changed in the working tree, for the scripts that check only that."""

import subprocess
from pathlib import Path

TOP = Path(__file__).resolve().parent.parent


def output_of(command, folder=TOP):
    """-> what the command prints, without white space at its ends; empty where it fails."""
    outcome = subprocess.run(command, cwd=folder, capture_output=True, text=True)
    return outcome.stdout.strip() if outcome.returncode == 0 else ""


def usual_base():
    """Where this branch left the main one; on the main branch itself, what its last change was made on."""
    head = output_of(["git", "rev-parse", "HEAD"])
    for main in ("origin/main", "main"):
        base = output_of(["git", "merge-base", "HEAD", main])
        if base and base != head:
            return base
    return output_of(["git", "rev-parse", "HEAD~1"])


def changed_since(base):
    """-> the files' paths from the top, those that are not yet committed or known to git among them."""
    committed = output_of(["git", "diff", "--name-only", "--diff-filter=d", base])
    new = output_of(["git", "ls-files", "--others", "--exclude-standard"])
    return set((committed + "\n" + new).split("\n")) - {""}
