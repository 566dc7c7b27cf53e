"""A build with some of its objects compiled anew, from changed sources or with other flags: the commands are those that
Ninja knows."""
import json
import os
import re
import shlex
import subprocess

LIBRARY, BATCH = "libzulgenpx-7.0.so", "libzulgenpx-batch-7.0.so"
KERNELS = r"CMakeFiles/zulgenpx_kernels(_\w+)?\.dir/"
# The objects of the libraries that are compiled anew where they see a change: not the kernels and not the texts of
# batches, which are hundreds.
OWN = (r"CMakeFiles/zulgenpx\.dir/|CMakeFiles/zulgenpx_lane_passes_x86_64(_v3)?\.dir/|CMakeFiles/zulgenpx_batch\.dir/|"
       r"CMakeFiles/zulgenpx_batch_objects_x86_64(_v3)?\.dir/batch/|"
       r"tests/plan/CMakeFiles/table_arguments_test\.dir/rounded_by_integers")


class Build:
    def __init__(self, folder, everything=False):
        self.folder = os.path.abspath(folder)
        self.commands = {entry["output"]: entry for entry in json.loads(self.ninja("-t", "compdb"))
                         if entry["output"].endswith(".o")
                         and (everything or re.match(OWN + "|tests/", entry["output"]))}
        self.users = {}
        user = None
        for line in self.ninja("-t", "deps").splitlines():
            if line[:1] not in ("", " "):
                user = line.split(":")[0]
            elif line and user in self.commands:
                path = os.path.normpath(os.path.join(self.folder, line.strip()))
                self.users.setdefault(path, []).append(user)
        with open(os.path.join(self.folder, "CMakeCache.txt"), encoding="utf-8") as file:
            self.tree = re.search(r"CMAKE_HOME_DIRECTORY:INTERNAL=(.*)", file.read()).group(1)
        self.links = {name: shlex.split(self.ninja("-t", "commands", name).splitlines()[-1])
                      for name in (LIBRARY, BATCH)}
        self.kernels = self.texts = None
        self.archives = {}

    def ninja(self, *arguments):
        return subprocess.run(["ninja", *arguments], cwd=self.folder, stdout=subprocess.PIPE, text=True,
                              check=True).stdout

    def path(self, name):
        return os.path.join(self.folder, name)

    def join_kernels(self, folder):
        """One object of all kernels, which links faster than all of them."""
        objects = [word for word in self.links[LIBRARY] if re.match(KERNELS, word)]
        self.kernels = os.path.join(folder, "kernels.o")
        subprocess.run(["ld", "-r", "-o", self.kernels, *objects], cwd=self.folder, check=True)
        texts = [word for word in self.links[BATCH] if "zulgenpx_batch_objects" in word and "/batch/batch." not in word]
        self.texts = os.path.join(folder, "texts.o")
        subprocess.run(["ld", "-r", "-o", self.texts, *texts], cwd=self.folder, check=True)

    def compile_users(self, folder, path, own=OWN, flags=("-O1", "-w")):
        """The objects that see a changed file of `folder`, compiled anew: their paths by those in the build. Null if
        one does not compile."""
        compiled = {}
        for number, name in enumerate(sorted(self.users.get(os.path.join(self.tree, path), []))):
            if not re.match(own, name):
                continue
            command = self.compile_command(name, folder, path, os.path.join(folder, f"{number}.o"), flags)
            if subprocess.run(command, cwd=self.folder, stderr=subprocess.DEVNULL, check=False).returncode != 0:
                return None
            compiled[name] = command[-1]
        return compiled

    def compile_command(self, name, folder, path, output, flags):
        entry = self.commands[name]
        words = [word for word in shlex.split(entry["command"]) if word not in ("ccache", "-MD", "-Werror")]
        for option in ("-MT", "-MF", "-o", "-c"):
            at = words.index(option)
            del words[at:at + 2]
        words = [word for word in words if word not in ("-O2", "-Os")]
        source = entry["file"]
        if os.path.normpath(os.path.join(self.folder, source)) == os.path.join(self.tree, path):
            source = os.path.join(folder, path)
        # Each folder of the tree in which headers are searched, as it is with the change.
        own = [word.replace(f"-I{self.tree}", f"-I{folder}") for word in words
               if folder and (word == f"-I{self.tree}" or word.startswith(f"-I{self.tree}/targets/"))]
        return [words[0], *own, *words[1:], *flags, "-c", source, "-o", output]

    def link_libraries(self, folder, objects):
        """The library and the batch library with these objects in place of the build's; null if one does not link."""
        where = os.path.join(folder, "libraries")
        os.makedirs(where, exist_ok=True)
        paths = {"main": os.path.join(where, LIBRARY), "batch": os.path.join(where, BATCH)}
        for name, kind, joined, pattern in ((LIBRARY, "main", self.kernels, KERNELS),
                                            (BATCH, "batch", self.texts, "CMakeFiles/zulgenpx_batch_objects")):
            if not any(self.is_of(name, user) for user in objects):
                if not os.path.exists(paths[kind]):
                    os.symlink(self.path(name), paths[kind])
                continue
            words, is_joined = [], False
            for word in self.links[name]:
                if word in objects:
                    words.append(objects[word])
                elif re.match(pattern, word) and "/batch/batch." not in word:
                    words += [] if is_joined else [joined]
                    is_joined = True
                else:
                    words.append(word)
            if not self.linked(words, name, paths[kind]):
                return None
        core = os.path.join(where, "libzulcore-7.0.so")
        if not os.path.exists(core):
            os.symlink(self.path("libzulcore-7.0.so"), core)
        return paths

    def is_of(self, library, user):
        return user in self.links[library]

    def link_program(self, folder, name, objects, options=()):
        """A program of the build with these objects in place of its own, or before the archives that have them."""
        if name not in self.links:
            self.links[name] = shlex.split(self.ninja("-t", "commands", name).splitlines()[-1])
        words = [objects.get(word, word) for word in self.links[name]]
        own = [path for user, path in objects.items()
               if user not in self.links[name] and re.match(r"CMakeFiles/zulgenpx\.dir/dct4/|generator/|tools/", user)
               and self.has_source(name, user)]
        at = words.index("-o")
        words[at:at] = own
        words += options
        path = os.path.join(folder, name)
        return path if self.linked(words, name, path) else None

    def has_source(self, program, user):
        """Whether a program has the source of an object linked in, by way of an archive. Sources of the library are in
        archives of tests."""
        folder = user.split("/")[0]
        return os.path.basename(user) in self.members(program, "tests" if folder == "CMakeFiles" else folder)

    def members(self, program, folder):
        archives = [word for word in self.links[program] if word.endswith(".a") and word.startswith(folder + "/")]
        for archive in archives:
            if archive not in self.archives:
                self.archives[archive] = subprocess.run(["ar", "t", archive], cwd=self.folder, stdout=subprocess.PIPE,
                                                        text=True, check=True).stdout.split()
        return {name for archive in archives for name in self.archives[archive]}

    def linked(self, words, name, path):
        words = [word.replace("\\$", "$") for word in words if word not in (":", "&&")]
        words[words.index("-o") + 1] = path
        return subprocess.run(words, cwd=self.folder, stderr=subprocess.DEVNULL, check=False).returncode == 0
