"""PostgreSQL servers for single tests: in a folder that goes with them, reached through 127.0.0.1."""
import glob
import os
import pathlib
import shutil
import socket
import subprocess
import tempfile
import time

BINARIES = max(glob.glob("/usr/lib/postgresql/*/bin"), key=lambda name: int(name.split("/")[-2]), default="")


def free_port():
    with socket.socket() as listener:
        listener.bind(("127.0.0.1", 0))
        return listener.getsockname()[1]


def unprivileged(words):
    """The server refuses to run as root: then the packages' own user runs it."""
    return ["setpriv", "--reuid=postgres", "--regid=postgres", "--clear-groups"] + words if os.getuid() == 0 else words


class Servers:
    """A folder of servers; leaving it ends what was started in it."""

    def __enter__(self):
        memory = "/dev/shm"  # where there is a gigabyte of it
        has_room = os.access(memory, os.W_OK) and shutil.disk_usage(memory).free > 1e9
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="billora-pgs.", dir=memory if has_room else None))
        os.chmod(self.folder, 0o755)
        self.own(self.folder)
        self.running = []
        return self

    def __exit__(self, *_):
        for process in self.running:
            process.kill()
        for data in self.folder.glob("*/postmaster.pid"):
            self.control(data.parent, "stop", "-m", "immediate")
        shutil.rmtree(self.folder)

    def own(self, path):
        if os.getuid() == 0:
            shutil.chown(path, "postgres", "postgres")

    def run(self, program, *words):
        done = subprocess.run(unprivileged([f"{BINARIES}/{program}"] + list(words)), cwd=self.folder, text=True,
                              stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        if done.returncode:
            raise SystemExit(f"{program} {words}: {done.stderr}")

    def control(self, data, *words):
        self.run("pg_ctl", "-D", str(data), "-w", "-t", "30", "-l", f"{data}.log", *words)

    def make(self, name, *rules):
        """A new server's data; rules come in front of pg_hba.conf."""
        data = self.folder / name
        self.run("initdb", "-D", str(data), "-U", "billora", "-A", "trust", "-E", "UTF8", "--locale=C.UTF-8",
                 "--no-sync")
        hba = data / "pg_hba.conf"
        hba.write_text("".join(rule + "\n" for rule in rules) + hba.read_text())
        return data

    def start(self, data, port, *settings):
        options = "".join(f" -c {setting}" for setting in settings)
        self.control(data, "-o", f"-k {self.folder} -p {port} -c listen_addresses=127.0.0.1{options}", "start")

    def sql(self, port, statement, database="postgres"):
        return subprocess.run(["psql", "-XqAt", "-h", "127.0.0.1", "-p", str(port), "-U", "billora", "-d", database,
                               "-c", statement], check=True, capture_output=True, text=True).stdout.strip()

    def background(self, words):
        """A process that ends with the folder."""
        self.running.append(subprocess.Popen(unprivileged(words), cwd=self.folder, stdout=subprocess.DEVNULL,
                                             stderr=subprocess.DEVNULL))

    def wait_for(self, port):
        for _ in range(100):
            with socket.socket() as client:
                if client.connect_ex(("127.0.0.1", port)) == 0:
                    return
            time.sleep(0.05)
        raise SystemExit(f"nothing listens at port {port}")
