"""The system information of a UMTS cell, decoded by libsibdecoder_umts, as Python dicts.

Standard library only: the shared library is loaded with ctypes, and every record comes from
the library's own JSON writer (umts_sib_record_json), so that a record's dict has exactly the
names and values of the JSON that sibdump writes.

    import sibdecoder_umts as sd

    dec = sd.Decoder()                        # one per cell
    for block in transport_blocks:            # BCH transport blocks, bytes (31 octets each)
        for name, record in dec.feed_block(block).items():
            print(name, record)               # e.g. "sib3" {"presence_bitmask": 1, ...}
        if dec.last_status == 0:              # the block's reason, e.g. at the start of a
            print(dec.last_error)             # stream, a segment of a SIB never begun
    sib3 = dec.decode_sib("sib3", sib3_bytes) # one whole SIB: its record

The library is looked for, in this order: the path given to Decoder()/load(); the environment
variable SIBDECODER_UMTS_LIBRARY; the build tree (<repository>/build) when the module is used
from the source tree; the library directory of the installation that this package belongs to;
the system's library search (ctypes.util.find_library, then the dynamic loader's own search).

Each Decoder owns a decoder instance of the library: the segments of the SIBs it collects,
what its cell's MIB, SB1 and SB2 scheduled, its result record and its summary, shared with no
other Decoder. Decoders are independent: one Decoder per cell, any number per process. ctypes
releases the interpreter lock while the library works, so Decoders on different threads
decode in parallel (a Decoder is to be used by one thread at a time); a Decoder made in a
worker process (multiprocessing, concurrent.futures) shares nothing with its parent.

The library can print each decoded value as ASN.1 text; a Decoder prints nothing unless
set_asn1_text() has named a file (or None for standard output), as sibdump writes nothing
without --asn1-text. The library's few messages about bad transport blocks ("No system info
provided", ...) go with that text. Its log (set_log_level()) goes to standard error.
"""
from __future__ import annotations

import ctypes
import ctypes.util
import json
import os
import threading
import weakref
from pathlib import Path
from typing import Dict, Iterable, Iterator, List, Optional, Tuple, Union

__all__ = [
    "Decoder", "Library", "SibDecodeError", "LibraryNotFoundError", "load", "library_path",
    "sib_names", "decode_sib", "decode_blocks", "set_asn1_text", "set_log_level",
    "LIBRARY_ENV", "MAX_BLOCK_OCTETS", "MAX_SIB_OCTETS",
]

#: Environment variable naming the shared library to load (a file, or a directory holding it).
LIBRARY_ENV = "SIBDECODER_UMTS_LIBRARY"
#: The longest transport block accepted, as by sibdump (a BCCH-BCH-Message has 31 octets).
MAX_BLOCK_OCTETS = 64
#: The longest whole SIB that umts_sib_msg_decoder accepts.
MAX_SIB_OCTETS = 2048

_FILE_NAME = "libsibdecoder_umts.so"
#: The summary library, found beside the decoder library.
_SUMMARY_FILE_NAME = "libsibdecoder_umts_summary.so"
_JSON_START = 1 << 16

PathLike = Union[str, "os.PathLike[str]"]
Record = Dict[str, object]


class LibraryNotFoundError(OSError):
    """No usable libsibdecoder_umts was found, or the one named cannot be loaded."""


class SibDecodeError(Exception):
    """The library returned a failure status for a transport block or a whole SIB.

    status:  the entry's return value (0)
    entry:   "umts_sib_decoder" or "umts_sib_msg_decoder"
    block:   the name of the SIB handed in (whole SIBs), else None
    records: the blocks that the call converted all the same, name -> record; nothing that
             the library converted is lost with the exception
    """

    def __init__(self, message: str, *, status: int, entry: str, block: Optional[str] = None,
                 records: Optional[Dict[str, Record]] = None):
        super().__init__(message)
        self.status = status
        self.entry = entry
        self.block = block
        self.records = records if records is not None else {}


# ---- The shared library ---------------------------------------------------------------------

class _DlInfo(ctypes.Structure):
    _fields_ = [("dli_fname", ctypes.c_char_p), ("dli_fbase", ctypes.c_void_p),
                ("dli_sname", ctypes.c_char_p), ("dli_saddr", ctypes.c_void_p)]


def _libc():
    libc = ctypes.CDLL(None, use_errno=True)
    libc.fopen.restype = ctypes.c_void_p
    libc.fopen.argtypes = [ctypes.c_char_p, ctypes.c_char_p]
    libc.fclose.argtypes = [ctypes.c_void_p]
    return libc


def _file_of(function, fallback: str) -> str:
    """The file that the dynamic loader took `function` from (the name given may be bare)."""
    try:
        dladdr = ctypes.CDLL(None).dladdr
    except AttributeError:
        return fallback
    info = _DlInfo()
    address = ctypes.cast(function, ctypes.c_void_p)
    if dladdr(address, ctypes.byref(info)) and info.dli_fname:
        return os.path.realpath(os.fsdecode(info.dli_fname))
    return fallback


class Library:
    """One loaded libsibdecoder_umts: the functions that the module calls, typed for ctypes.

    Attributes: path (the file loaded), names (the blocks of umts_sib_set by slot, "mib" to
    "sb2"), set_size (bytes of umts_sib_set).
    """

    def __init__(self, path: PathLike):
        try:
            dll = ctypes.CDLL(os.fspath(path))
        except OSError as err:
            raise LibraryNotFoundError(f"cannot load libsibdecoder_umts from {os.fspath(path)}: {err}") from None
        needed = ("umts_sib_decoder_new", "umts_sib_decoder_free", "umts_sib_decoder_reset",
                  "umts_sib_decoder_feed_block", "umts_sib_decoder_feed_sib", "umts_sib_decoder_print_to",
                  "umts_sib_decoder_print_flush", "umts_sib_set_size", "umts_sib_name",
                  "umts_sib_id_of_name", "umts_sib_record_json", "umts_sib_set_alloc", "umts_sib_set_free")
        missing = [name for name in needed if not hasattr(dll, name)]
        if missing:
            raise LibraryNotFoundError(
                f"{os.fspath(path)} lacks {', '.join(missing)}: not a libsibdecoder_umts of this version")
        u8p, setp, size_t, decp = ctypes.c_char_p, ctypes.c_void_p, ctypes.c_size_t, ctypes.c_void_p
        dll.umts_sib_decoder_new.restype = decp
        dll.umts_sib_decoder_new.argtypes = []
        dll.umts_sib_decoder_free.restype = None
        dll.umts_sib_decoder_free.argtypes = [decp]
        dll.umts_sib_decoder_reset.restype = None
        dll.umts_sib_decoder_reset.argtypes = [decp]
        dll.umts_sib_decoder_feed_block.restype = ctypes.c_uint8
        dll.umts_sib_decoder_feed_block.argtypes = [decp, u8p, setp, ctypes.c_uint32]
        dll.umts_sib_decoder_feed_sib.restype = ctypes.c_uint8
        dll.umts_sib_decoder_feed_sib.argtypes = [decp, ctypes.c_int, u8p, setp, ctypes.c_uint32]
        dll.umts_sib_decoder_print_to.restype = None
        dll.umts_sib_decoder_print_to.argtypes = [decp, ctypes.c_void_p]
        dll.umts_sib_decoder_print_flush.restype = None
        dll.umts_sib_decoder_print_flush.argtypes = [decp]
        dll.umts_sib_set_size.restype = size_t
        dll.umts_sib_set_size.argtypes = []
        dll.umts_sib_decoder_state.restype = ctypes.c_void_p
        dll.umts_sib_decoder_state.argtypes = [decp]
        dll.umts_sib_name.restype = ctypes.c_char_p
        dll.umts_sib_name.argtypes = [ctypes.c_int]
        dll.umts_sib_id_of_name.restype = ctypes.c_int
        dll.umts_sib_id_of_name.argtypes = [ctypes.c_char_p, size_t]
        dll.umts_sib_record_json.restype = size_t
        dll.umts_sib_record_json.argtypes = [setp, ctypes.c_int, ctypes.c_char_p, size_t]
        dll.umts_sib_set_alloc.restype = setp
        dll.umts_sib_set_alloc.argtypes = []
        dll.umts_sib_set_free.restype = None
        dll.umts_sib_set_free.argtypes = [setp]
        self._dll = dll
        self.path = _file_of(dll.umts_sib_decoder_new, os.fspath(path))
        self.set_size = int(dll.umts_sib_set_size())
        names = []
        while True:
            name = dll.umts_sib_name(len(names))
            if name is None:
                break
            names.append(name.decode("ascii"))
        self.names: Tuple[str, ...] = tuple(names)
        self._libc = _libc()
        self._print_file: Optional[int] = None
        #: The stream that Decoders print their text on (None: nowhere).
        self._print_target: Optional[int] = None
        self._decoders: "weakref.WeakSet[Decoder]" = weakref.WeakSet()
        self._summary_lock = threading.Lock()
        self._summary_dll: Optional[ctypes.CDLL] = None

    def __repr__(self) -> str:
        return f"<sibdecoder_umts.Library {self.path}>"

    def summary_dll(self) -> ctypes.CDLL:
        """libsibdecoder_umts_summary, beside this library, typed for ctypes (loaded once)."""
        with self._summary_lock:
            return self._load_summary_dll()

    def _load_summary_dll(self) -> ctypes.CDLL:
        if self._summary_dll is None:
            here = Path(self.path).parent
            candidates = [here / _SUMMARY_FILE_NAME] + sorted(here.glob(_SUMMARY_FILE_NAME + ".*"))
            path = next((c for c in candidates if c.exists()), None)
            if path is None:
                raise LibraryNotFoundError(f"no {_SUMMARY_FILE_NAME} beside {self.path}")
            try:
                dll = ctypes.CDLL(os.fspath(path))
            except OSError as err:
                raise LibraryNotFoundError(f"cannot load {path}: {err}") from None
            dll.umts_summary_new.restype = ctypes.c_void_p
            dll.umts_summary_new.argtypes = []
            dll.umts_summary_free.restype = None
            dll.umts_summary_free.argtypes = [ctypes.c_void_p]
            dll.umts_summary_take.restype = ctypes.c_int
            dll.umts_summary_take.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_char_p, ctypes.c_void_p,
                                              ctypes.c_char_p, ctypes.c_size_t]
            dll.umts_summary_take_collection.restype = ctypes.c_int
            dll.umts_summary_take_collection.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_void_p]
            dll.umts_summary_text.restype = ctypes.c_void_p
            dll.umts_summary_text.argtypes = [ctypes.c_void_p, ctypes.c_char_p]
            dll.umts_summary_text_free.restype = None
            dll.umts_summary_text_free.argtypes = [ctypes.c_void_p]
            self._summary_dll = dll
        return self._summary_dll

    def sib_id(self, sib: Union[str, int]) -> int:
        """The slot of a block given by its name ("sib3") or its number (umts_sib_id)."""
        if isinstance(sib, str):
            raw = sib.encode("ascii", "replace")
            sib_id = self._dll.umts_sib_id_of_name(raw, len(raw))
            if sib_id >= len(self.names):
                raise ValueError(f"unknown SIB name {sib!r} (expected one of {', '.join(self.names)})")
            return sib_id
        if isinstance(sib, int) and not isinstance(sib, bool):
            if not 0 <= sib < len(self.names):
                raise ValueError(f"SIB number {sib} is outside 0 to {len(self.names) - 1}")
            return sib
        raise TypeError(f"a SIB is a name or a number, not {type(sib).__name__}")

    def set_asn1_text(self, path: Optional[PathLike]) -> None:
        """Where the Decoders of this library write their ASN.1 text and messages, those made
        before as well as after: a file (truncated), os.devnull (no text: the module's choice at
        load time; the library then formats none), or None for the process's standard output.
        Call it while no Decoder is decoding."""
        stream = None  # a stream of the module's own, closed when another is chosen
        if path is None:
            target = ctypes.c_void_p.in_dll(self._libc, "stdout").value
        elif os.fspath(path) == os.devnull:
            target = None  # the library then formats no text at all
        else:
            stream = self._libc.fopen(os.fsencode(path), b"w")
            if not stream:
                err = ctypes.get_errno()
                raise OSError(err, f"cannot open for the ASN.1 text: {os.strerror(err)}", os.fspath(path))
            target = stream
        for decoder in list(self._decoders):
            decoder._print_to(target)  # writes out what was gathered for the old stream
        self._print_target = target
        old, self._print_file = self._print_file, stream
        if old:
            self._libc.fclose(old)

    @property
    def log_level(self) -> int:
        """zvtLogLevelThreshold: above 1 the library logs errors, above 5 also traces."""
        return ctypes.c_uint.in_dll(self._dll, "zvtLogLevelThreshold").value

    @log_level.setter
    def log_level(self, level: int) -> None:
        ctypes.c_uint.in_dll(self._dll, "zvtLogLevelThreshold").value = level


_loaded: Dict[str, Library] = {}
_default: Optional[Library] = None
_load_lock = threading.Lock()


def _files_in(directory: Path) -> Iterator[Path]:
    """The library files of a directory: the plain name first, then the versioned ones."""
    plain = directory / _FILE_NAME
    if plain.is_file():
        yield plain
    yield from sorted(p for p in directory.glob(_FILE_NAME + ".*") if p.is_file())


def _places() -> Iterator[Tuple[str, Path]]:
    """The build tree and the installation of this package, as (what, directory)."""
    package = Path(__file__).resolve().parent
    if package.parent.name == "python":
        yield "the build tree", package.parent.parent / "build"
    try:
        from . import _install  # written by `cmake --install`
    except ImportError:
        return
    yield "the installation", (package / _install.LIBRARY_DIR).resolve()


def _open(path: PathLike) -> Library:
    key = os.path.realpath(os.fspath(path))
    if key not in _loaded:
        _loaded[key] = Library(path)
    return _loaded[key]


def _find() -> Library:
    tried = []
    named = os.environ.get(LIBRARY_ENV)
    if named:
        return _load_named(named, f"${LIBRARY_ENV}")
    for what, directory in _places():
        for candidate in _files_in(directory):
            return _open(candidate)
        tried.append(f"{what} ({directory})")
    for name in (ctypes.util.find_library("sibdecoder_umts"), _FILE_NAME):
        if name:
            try:
                return _open(name)
            except LibraryNotFoundError:
                pass
    tried.append("the system's library search")
    raise LibraryNotFoundError(
        f"libsibdecoder_umts not found in {', '.join(tried)}: build it (cmake --build build), "
        f"install it, or name it in {LIBRARY_ENV}")


def _load_named(path: PathLike, what: str) -> Library:
    target = Path(path).absolute()  # a bare file name is not looked up in the system's paths
    if target.is_dir():
        for candidate in _files_in(target):
            return _open(candidate)
        raise LibraryNotFoundError(f"no {_FILE_NAME} in the directory {target} ({what})")
    if not target.exists():
        raise LibraryNotFoundError(f"no such library: {target} ({what})")
    return _open(target)


def load(path: Optional[Union[PathLike, Library]] = None) -> Library:
    """The library at `path` (a file or a directory holding it), or the module's default one,
    found as the module's documentation says and kept for the process."""
    global _default
    if isinstance(path, Library):
        return path
    with _load_lock:
        if path is not None:
            return _load_named(path, "the path given")
        if _default is None:
            _default = _find()
        return _default


def library_path() -> str:
    """The file of the library that the module uses by default."""
    return load().path


def sib_names() -> Tuple[str, ...]:
    """The blocks that the library converts, by slot: "mib", "sib1", ... "sb2"."""
    return load().names


def set_asn1_text(path: Optional[PathLike]) -> None:
    """Where the default library writes its ASN.1 text (see Library.set_asn1_text)."""
    load().set_asn1_text(path)


def set_log_level(level: int) -> None:
    """The default library's log threshold: above 1 errors, above 5 traces (standard error)."""
    load().log_level = level


# ---- Decoding -------------------------------------------------------------------------------

def _octets(data, limit: int, what: str) -> bytes:
    if isinstance(data, str):
        raise TypeError(f"{what} must be bytes, not str (bytes.fromhex() reads hexadecimal text)")
    try:
        data = bytes(memoryview(data))
    except TypeError:
        raise TypeError(f"{what} must be a bytes-like object, not {type(data).__name__}") from None
    if not data:
        raise ValueError(f"{what} is empty")
    if len(data) > limit:
        raise ValueError(f"{what} of {len(data)} octets is longer than {limit}")
    return data


class Decoder:
    """One stream of system information (one cell): a decoder instance of a library, which
    collects the segments of the SIBs, and a result record (umts_sib_set) that transport
    blocks or whole SIBs fill.

    The record is large (the fixed arrays of SIB5 above all): make one Decoder per cell and
    keep it. It is a set of umts_sib_set_alloc, which the library clears by what each
    conversion wrote, and is released with the Decoder. Decoders share nothing: different
    Decoders may decode on different threads at once; one Decoder is to be used by one
    thread at a time.
    """

    def __init__(self, library: Optional[Union[PathLike, Library]] = None):
        self.library = load(library)
        dll = self.library._dll
        instance = dll.umts_sib_decoder_new()
        if not instance:
            raise MemoryError("umts_sib_decoder_new: no memory for a decoder")
        self._instance = instance
        weakref.finalize(self, dll.umts_sib_decoder_free, instance)
        address = dll.umts_sib_set_alloc()
        if not address:
            raise MemoryError("umts_sib_set_alloc: no memory for a result record")
        self._set_address = address
        weakref.finalize(self, dll.umts_sib_set_free, address)
        self._print_to(self.library._print_target)
        self.library._decoders.add(self)
        self._presence = ctypes.c_uint16.from_address(address)
        self._json = ctypes.create_string_buffer(_JSON_START)
        #: What the last call of an entry returned (1 success, 0 failure).
        self.last_status: Optional[int] = None
        #: Why the last call returned 0 (None after a success).
        self.last_error: Optional[str] = None
        #: Calls that returned 0 so far.
        self.failures = 0
        #: The last record of each block that a call of this Decoder converted.
        self.received: Dict[str, Record] = {}
        # The summary's collection, fed by every call (the records it converted, and the
        # transport blocks for SIB19, which the result record does not hold).
        # Without the summary library beside the decoder library, everything but summary() works.
        self._summary = None
        try:
            summaries = self.library.summary_dll()
        except LibraryNotFoundError:
            return
        self._summary = summaries.umts_summary_new()
        if not self._summary:
            raise MemoryError("umts_summary_new: no memory")
        weakref.finalize(self, summaries.umts_summary_free, self._summary)

    def feed_block(self, block, *, strict: bool = False) -> Dict[str, Record]:
        """Hands one BCH transport block to the Decoder's instance (as umts_sib_decoder);
        returns the blocks that this call converted, name -> record, in slot order.

        A status of 0 (a block that cannot be decoded, a segment that does not continue the
        SIB being collected, as at the start of any capture, a conversion that failed) is
        routine on a real stream: the records that the call converted are returned all the
        same, last_status is 0 and last_error says why. With strict=True it raises
        SibDecodeError instead, which carries those records.
        """
        data = _octets(block, MAX_BLOCK_OCTETS, "a transport block")
        lib = self.library
        self._presence.value = 0  # this entry adds its blocks to the word; the call's only
        status = lib._dll.umts_sib_decoder_feed_block(self._instance, data, self._set_address, len(data))
        records = self.records()
        self.received.update(records)
        if self._summary:
            summaries = lib.summary_dll()
            summaries.umts_summary_take(self._summary, b"", b"", self._set_address, data, len(data))
            # The SIBs begun and not completed: the summary tells their segments received.
            summaries.umts_summary_take_collection(self._summary, b"", lib._dll.umts_sib_decoder_state(self._instance))
        message = None
        if status != 1:
            message = (f"umts_sib_decoder returned {status} for a transport block of {len(data)} octets "
                       f"({data[:8].hex()}{'...' if len(data) > 8 else ''}): it cannot be decoded, or its "
                       f"segment does not continue the SIB being collected, or a SIB that it completed "
                       f"failed to convert (converted all the same: {', '.join(records) or 'none'})")
        self._note(status, message)
        if message is not None and strict:
            raise SibDecodeError(message, status=status, entry="umts_sib_decoder", records=records)
        return records

    def _note(self, status: int, message: Optional[str]) -> None:
        self.last_status = status
        self.last_error = message
        if status != 1:
            self.failures += 1

    def decode_sib(self, sib: Union[str, int], data) -> Record:
        """Hands one whole SIB (by name, e.g. "sib3", or slot number) to umts_sib_msg_decoder;
        returns its record. A failure raises SibDecodeError."""
        lib = self.library
        sib_id = lib.sib_id(sib)
        name = lib.names[sib_id]
        octets = _octets(data, MAX_SIB_OCTETS, f"the {name} SIB")
        status = lib._dll.umts_sib_decoder_feed_sib(self._instance, sib_id, octets, self._set_address, len(octets))
        records = self.records()
        self.received.update(records)
        if self._summary:
            lib.summary_dll().umts_summary_take(self._summary, b"", b"", self._set_address, None, 0)
        if status != 1 or name not in records:
            message = (f"umts_sib_msg_decoder returned {status} for {name} ({len(octets)} octets): it "
                       f"cannot be decoded as {name}, or a conversion failed (converted all the same: "
                       f"{', '.join(records) or 'none'})")
            self._note(status, message)
            raise SibDecodeError(message, status=status, entry="umts_sib_msg_decoder", block=name, records=records)
        self._note(status, None)
        return records[name]

    def summary(self, label: Optional[str] = None) -> Record:
        """The summary of the cell whose blocks this Decoder converted (the last of each, and
        SIB19 from the transport blocks), as sibdump --summary=json writes it: identity,
        access, selection, schedule, common channels, neighbours and priorities, in names and
        units; `label` names the cell. After a new MIB value tag, the cell's new configuration
        (summaries() has the ended ones too)."""
        return self.summaries(label)[-1]

    def summaries(self, label: Optional[str] = None) -> List[Record]:
        """Every summary of the cell: each configuration that a new MIB value tag ended (with
        "ended_by"), then the cell as it stands."""
        dll = self.library.summary_dll()  # raises LibraryNotFoundError without it
        text = dll.umts_summary_text(self._summary, b"json")
        if not text:
            raise MemoryError("umts_summary_text: no memory")
        try:
            lines = ctypes.string_at(text).decode("utf-8").splitlines()
        finally:
            dll.umts_summary_text_free(text)
        out = [json.loads(line) for line in lines]
        for s in out:
            s["cell"] = label
        return out

    def records(self) -> Dict[str, Record]:
        """The blocks that the last call converted (their bits in presence_bitmask)."""
        present = self._presence.value
        return {name: self.record(i) for i, name in enumerate(self.library.names) if present >> i & 1}

    def record(self, sib: Union[str, int]) -> Record:
        """The record of a block as it stands in the result, whether or not the last call
        converted it (a record stays until its block is converted again)."""
        sib_id = self.library.sib_id(sib)
        write = self.library._dll.umts_sib_record_json
        need = write(self._set_address, sib_id, self._json, len(self._json))
        if need >= len(self._json):
            self._json = ctypes.create_string_buffer(need + 1)
            need = write(self._set_address, sib_id, self._json, len(self._json))
        return json.loads(ctypes.string_at(self._json, need))

    def reset(self) -> None:
        """Drops the segments in collection and what the cell's scheduling blocks said (after
        a retune, say); the records received stay."""
        self.library._dll.umts_sib_decoder_reset(self._instance)

    def flush_asn1_text(self) -> None:
        """Hands the ASN.1 text gathered by this Decoder to its file and flushes the file."""
        self.library._dll.umts_sib_decoder_print_flush(self._instance)

    def _print_to(self, target: Optional[int]) -> None:
        self.library._dll.umts_sib_decoder_print_to(self._instance, target)


_shared: Optional[Decoder] = None


def decode_sib(sib: Union[str, int], data) -> Record:
    """One whole SIB through a Decoder that the module keeps: the SIB's record."""
    global _shared
    if _shared is None:
        _shared = Decoder()
    return _shared.decode_sib(sib, data)


def decode_blocks(blocks: Iterable, *, strict: bool = False,
                  library: Optional[Union[PathLike, Library]] = None) -> Iterator[Tuple[int, str, Record]]:
    """Transport blocks in order through one Decoder: (index of the block, name, record) for
    every block converted; a block that returns a failure status gives what it converted. With
    strict=True a failure status raises SibDecodeError."""
    decoder = Decoder(library)
    for index, block in enumerate(blocks):
        for name, record in decoder.feed_block(block, strict=strict).items():
            yield index, name, record
