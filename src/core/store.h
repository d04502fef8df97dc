// The one data store: an SQLite file, reached by statements of the dialect (dialect.h).
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/date_text.h"

struct sqlite3;
struct sqlite3_stmt;

namespace orvex::core {

enum class StoreFault {
  Missing,       // there is no such file
  Foreign,       // a file, but no store of this program
  Damaged,       // a store that is cut short or torn
  LaterRelease,  // written by a later release
  ReadOnly,      // may not be written
  Statement      // a statement was refused or failed
};

class StoreError : public std::runtime_error {
 public:
  StoreError(StoreFault fault, const std::string& what) : std::runtime_error(what), fault_(fault) {}
  StoreFault Fault() const { return fault_; }

 private:
  StoreFault fault_;
};

// A prepared statement of the engine.
struct StatementFinalizer {
  void operator()(sqlite3_stmt* statement) const;
};
using StatementHandle = std::unique_ptr<sqlite3_stmt, StatementFinalizer>;

// The forward result of a reading statement. It stands on its first row when made. Fields are named
// in any case; of two of one name the first counts. An unknown field or a read at the end:
// StoreError.
class Result {
 public:
  bool AtEnd() const { return atEnd_; }
  void Next();

  bool IsNull(std::string_view field) const;
  // "" for Null; a number as DoubleText writes it.
  std::string Text(std::string_view field) const;
  // 0 for Null.
  std::int64_t Integer(std::string_view field) const;
  double Number(std::string_view field) const;
  // Any non-zero value is true.
  bool Flag(std::string_view field) const;
  // Nothing for Null and for a text that is no stored moment.
  std::optional<DateTime> Moment(std::string_view field) const;

  std::vector<std::string> FieldNames() const { return names_; }

 private:
  friend class Store;
  explicit Result(StatementHandle statement);
  int Field(std::string_view name) const;

  StatementHandle statement_;
  std::vector<std::string> names_;  // asked of the engine once: rows are read by the 100,000
  bool atEnd_ = false;
};

class Store {
 public:
  // Opens a store for reading and writing. Nothing in the file is changed. StoreError with the
  // fault for what is missing, foreign, cut short, later or read-only.
  static Store Open(const std::filesystem::path& path);

  // Makes an empty store with the rights 0600. StoreError(Statement) if there is a file already.
  static Store Create(const std::filesystem::path& file);

  // Runs one reading statement. StoreError(Statement) for one that would write, for more than one,
  // and for one that fails.
  Result Query(std::string_view statement) const;

  // Runs one statement without a result. Returns the number of rows changed.
  std::int64_t Execute(std::string_view statement);

  // Copies the whole store to a new file by the engine's online backup. StoreError(Statement) where
  // that fails.
  void BackUpTo(const std::filesystem::path& file) const;

  // Runs the statements of a schema file, in the engine's own form.
  void ExecuteScript(const std::string& script);

  // Adds rows of texts to a table; each text is stored by its column's type. For filling tables.
  void InsertRows(const std::string& table, const std::vector<std::string>& columns,
                  const std::vector<std::vector<std::string>>& rows);

 private:
  friend class Batch;
  friend class StatementLimit;
  struct Closer {
    void operator()(sqlite3* connection) const;
  };

  explicit Store(sqlite3* connection);
  StatementHandle Prepare(const std::string& statement) const;
  [[noreturn]] void Fail(std::string_view what) const;

  std::unique_ptr<sqlite3, Closer> connection_;
};

// For statements that hold a text as it was typed: as long as it lives, a statement of the store
// that is still at work after `time` fails with StoreError(Statement), and one value takes little
// room.
class StatementLimit {
 public:
  StatementLimit(const Store& store, std::chrono::milliseconds time);
  StatementLimit(const StatementLimit&) = delete;
  StatementLimit& operator=(const StatementLimit&) = delete;
  ~StatementLimit();

 private:
  static int IsOver(void* limit);

  sqlite3* connection_;
  std::chrono::steady_clock::time_point end_;
  int longestValue_;
};

// A batch of writes as one transaction. A crash at any instant leaves the whole batch or nothing.
// A statement that fails inside a batch leaves what was written before it: the batch is kept, not
// undone, when an exception passes through it. Batches do not nest.
class Batch {
 public:
  explicit Batch(Store& store);
  Batch(const Batch&) = delete;
  Batch& operator=(const Batch&) = delete;
  ~Batch();

  // Writes the batch to the disk. StoreError(Statement) where that fails; nothing of it is kept.
  void Commit();

  // Takes back all that the batch has written.
  void Undo();

 private:
  Store& store_;
  bool open_ = true;
};

// Follows each batch of writes, so that what was written is seen by the next read.
void SyncStore(Store& store);

}  // namespace orvex::core
