// A small world for the interpreter: drives D: and E: and a share in a temporary folder, batch texts written as UTF-8,
// and the folder tree that is left as a list of lines.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "dos/stapel.h"
#include "dos/umfeld.h"

namespace jorv::dos::test {

struct Ausgang {
    bool gelesen = false;  ///< the batch file could be read
    std::string aus;       ///< printed text, UTF-8
    std::string fehler;
    int meldungen = 0;  ///< lines of the errors
};

class Probe {
public:
    /// `ordner` is the work folder, a full DOS path on D:, E: or \\server\freigabe (UTF-8).
    explicit Probe(std::string_view ordner = "D:\\Prüf a b");
    ~Probe();
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;

    /// Host path of a DOS path given in UTF-8; a relative one counts from the work folder.
    std::filesystem::path ort(std::string_view dos) const;
    /// Makes files ("a=text") and folders ("a\").
    void anlegen(const std::vector<std::string>& angaben) const;
    /// A program of the host (a shell script) in the folder of helpers, D:\Hilfs programme.
    void programm(std::string_view name, std::string_view skript) const;
    void batch(std::string_view pfad, std::string_view text) const;

    /// Runs the lines in this process as PROBE.BAT of the folder of helpers.
    Ausgang lauf(std::string_view zeilen, const std::vector<std::string>& argumente = {});
    /// Runs a batch file of the work folder by the program, as the workbench starts it.
    void als_programm(std::string_view name) const;

    /// What stands in a folder, sorted: "a=text" for files, "a\" for empty folders, deeper ones as "a\b=text".
    std::vector<std::string> baum(std::string_view ordner = {}) const;
    std::string inhalt(std::string_view datei) const;

private:
    std::filesystem::path m_wurzel;
    std::string m_ordner;  // UTF-8

public:
    Umfeld umfeld;
};

/// Lines of a batch, the work folder before and after them, and how many messages they print.
struct Baumfall {
    std::vector<std::string> vorher;
    std::string_view zeilen;
    std::vector<std::string> nachher;
    int meldungen = 0;
};

/// Runs each case in a world of its own.
void baumfaelle_pruefen(const std::vector<Baumfall>& faelle);

/// Bytes of a batch file: LF to CR LF, UTF-8 to code page 850.
std::string batchbytes(std::string_view utf8);

}  // namespace jorv::dos::test
