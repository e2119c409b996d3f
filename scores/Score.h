#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>

/// The top ten of the three board sizes, in memory and in the file `Score.hsc`.
///
/// Humans and computer stand in the same lists, ranked by the bombs that they needed; of equal
/// results the newer stands above. The file is 60 records of 30 bytes: two bytes with the length
/// of the text, low byte first, up to 28 bytes of Windows-1252 and filler. For each size and place
/// there are two, the name and the quote field:
///
///     size 1                size 2
///     1. name, 1. quote, 2. name, 2. quote ... 10. quote, 1. name ...
///
/// Games that share the file take turns at it, so that each reads whole tables; the one that saves
/// last wins.
class Score {
public:
  static constexpr int kPlaces = 10;

  /// A row of a list: UTF-8 in memory.
  struct Row {
    std::string name;
    std::string quote; ///< bombs as decimal digits; "?" for an unoccupied row
    bool operator==(const Row &) const = default;
    /// The number in the quote field; 0 if it is no positive whole number of 16 bits.
    int bombs() const;
  };

  /// Messages for the user. After the first two the program ends.
  static constexpr const char *kSaveFailed =
      "Es trat ein Fehler beim Speichern der Highscore-Daten auf!\r\nDas Programm wird beendet!";
  static constexpr const char *kResetFailed =
      "Es trat ein Fehler beim Erstellen der Datei auf!\r\nDas Programm wird beendet!";
  static constexpr const char *kDamaged =
      "Die Highscore-Datei ist beschädigt! Der normale Programmablauf kann nicht mehr "
      "sichergestellt werden!";

  explicit Score(std::filesystem::path file) : file_(std::move(file)) {}

  /// Size 1 to 3, place 1 to 10, best first.
  const Row &row(int size, int place) const { return list(size)[index(place)]; }

  enum class Loaded {
    whole,
    fresh,      ///< the file was missing or empty; it may still be missing. All texts are empty
    damaged,    ///< a length or a quote field is impossible, or the file ends early
    unreadable, ///< it cannot be read: all texts are empty
  };
  /// Reads the table; a missing file is created empty. What lies beyond the end of the file is
  /// read as empty texts, what comes after the last record is ignored.
  Loaded LoadScore();

  /// Writes the whole table, in place, with one write. False if that fails or if a name has more
  /// than 28 bytes, which writes nothing.
  bool SaveScore() const;

  /// Puts all lists into the reset state, then writes them. False as with `SaveScore`.
  bool ResetScore();

  /// Files a result, 1 to 32767 bombs, and saves. The place, 1 to 10, or 0 if it enters no list,
  /// which writes nothing. No value if saving failed.
  std::optional<int> EnterScore(int size, const std::string &name, int bombs);

  /// Start-up: loads the table. A first start writes the reset state,
  /// if it can. Of a damaged file, its table copied to `Score.hsc.defekt` beforehand, the intact
  /// rows stay; an unreadable one leaves the reset state; nothing is written before the next save.
  Loaded loadAtStart();
  /// Whether the user is to be warned, with `kDamaged`.
  static bool isBroken(Loaded loaded) {
    return loaded == Loaded::damaged || loaded == Loaded::unreadable;
  }

private:
  /// The ten places and a scratch row, which takes what drops off the list.
  using List = std::array<Row, kPlaces + 1>;

  static std::size_t index(int number) { return static_cast<std::size_t>(number - 1); }
  const List &list(int size) const { return lists_[index(size)]; }

  void reset();
  void keepIntactRows();
  void copyDamagedFile() const;

  std::filesystem::path file_;
  std::array<List, 3> lists_;
};
