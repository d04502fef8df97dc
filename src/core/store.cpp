#include "core/store.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <fstream>

#include "core/dialect.h"
#include "core/exact_numbers.h"
#include "core/home.h"
#include "core/letter_case.h"
#include "core/schema_version.h"
#include "core/text.h"

namespace orvex::core {

namespace {

constexpr std::int32_t kApplicationId = 0x4F525644;  // "ORVD"
constexpr int kBusyMilliseconds = 5000;
// Room for a practice of 100,000 clients; the engine takes what it uses of it. Rows that are put in
// order never go to a file beside the store: clients' data lies in one place.
constexpr const char* kMemory = "pragma cache_size = -65536; pragma temp_store = memory";  // KiB

// Places in the first 100 bytes of the file, numbers with the high byte first.
constexpr std::size_t kHeaderSize = 100;
constexpr std::size_t kPageSizeAt = 16;
constexpr std::size_t kPageCountAt = 28;
constexpr std::size_t kUserVersionAt = 60;
constexpr std::size_t kApplicationIdAt = 68;
constexpr std::string_view kMagic{"SQLite format 3\0", 16};

using Header = std::array<unsigned char, kHeaderSize>;

std::uint32_t BigEndian(const Header& header, std::size_t at, std::size_t bytes) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < bytes; ++i) {
    value = value << 8U | header.at(at + i);
  }
  return value;
}

Header ReadHeader(const std::filesystem::path& file) {
  Header header{};
  std::ifstream stream(file, std::ios::binary);
  stream.read(reinterpret_cast<char*>(header.data()), kHeaderSize);
  const bool whole = stream.gcount() == static_cast<std::streamsize>(kHeaderSize);
  if (!whole ||
      !std::equal(kMagic.begin(), kMagic.end(), header.begin(),
                  [](char a, unsigned char b) { return static_cast<unsigned char>(a) == b; })) {
    throw StoreError(StoreFault::Foreign, "not a database");
  }
  return header;
}

void CheckWholeFile(const std::filesystem::path& file, const Header& header) {
  if (std::filesystem::exists(file.string() + "-journal")) {
    return;  // A crash left a journal: the engine restores the file when it is first read.
  }
  const std::uint32_t pageSize = BigEndian(header, kPageSizeAt, 2);
  const std::uint64_t pages = BigEndian(header, kPageCountAt, 4);
  if (std::filesystem::file_size(file) < pages * (pageSize == 1 ? 65536 : pageSize)) {
    throw StoreError(StoreFault::Damaged, "the database is cut short");
  }
}

void CheckFile(const std::filesystem::path& file) {
  if (!std::filesystem::is_regular_file(file)) {
    throw StoreError(StoreFault::Missing, "no database");
  }
  const Header header = ReadHeader(file);
  const std::uint32_t id = BigEndian(header, kApplicationIdAt, 4);
  // A store of an early release carries no mark; it is known by its tables.
  if (id != 0 && id != static_cast<std::uint32_t>(kApplicationId)) {
    throw StoreError(StoreFault::Foreign, "a database of another program");
  }
  if (BigEndian(header, kUserVersionAt, 4) > static_cast<std::uint32_t>(kSchemaVersion)) {
    throw StoreError(StoreFault::LaterRelease, "a database of a later release");
  }
  CheckWholeFile(file, header);
  // The owner's bit counts too: an administrator's access rights would pass over it.
  const auto rights = std::filesystem::status(file).permissions();
  const bool ownerMayWrite =
      (rights & std::filesystem::perms::owner_write) != std::filesystem::perms::none;
  if (!ownerMayWrite || ::access(file.c_str(), W_OK) != 0) {
    throw StoreError(StoreFault::ReadOnly, "the database may not be written");
  }
}

std::optional<DateTime> MomentOf(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return text == nullptr ? std::nullopt : ParseDateTime(text);
}

template <int DateParts::*Part>
void DatePartFunction(sqlite3_context* context, int /*count*/, sqlite3_value** arguments) {
  const std::optional<DateTime> moment = MomentOf(arguments[0]);
  if (moment) {
    sqlite3_result_int(context, PartsOf(*moment).*Part);
  } else {
    sqlite3_result_null(context);
  }
}

void UpperCaseFunction(sqlite3_context* context, int /*count*/, sqlite3_value** arguments) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(arguments[0]));
  if (text == nullptr) {
    sqlite3_result_null(context);
    return;
  }
  const std::string upper = UpperCaseOfAll(text);
  sqlite3_result_text(context, upper.c_str(), static_cast<int>(upper.size()), SQLITE_TRANSIENT);
}

int CompareNames(void* /*unused*/, int leftSize, const void* left, int rightSize,
                 const void* right) {
  return CompareFolded({static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
                       {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

void RegisterFunctions(sqlite3* connection) {
  constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
  const auto add = [connection](const char* name, auto* function) {
    sqlite3_create_function(connection, name, 1, kFlags, nullptr, function, nullptr, nullptr);
  };
  add("day", &DatePartFunction<&DateParts::Day>);
  add("month", &DatePartFunction<&DateParts::Month>);
  add("year", &DatePartFunction<&DateParts::Year>);
  add("ucase", &UpperCaseFunction);
  sqlite3_create_collation(connection, "names", SQLITE_UTF8, nullptr, &CompareNames);
}

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n;") == std::string_view::npos;
}

std::string Translated(std::string_view statement) {
  try {
    return TranslateStatement(statement);
  } catch (const std::invalid_argument& error) {
    throw StoreError(StoreFault::Statement, error.what());
  }
}

sqlite3* OpenConnection(const std::filesystem::path& file) {
  sqlite3* connection = nullptr;
  const int opened = sqlite3_open_v2(file.c_str(), &connection, SQLITE_OPEN_READWRITE, nullptr);
  if (opened != SQLITE_OK) {
    sqlite3_close(connection);
    throw StoreError(StoreFault::Missing, "the database could not be opened");
  }
  sqlite3_busy_timeout(connection, kBusyMilliseconds);
  sqlite3_limit(connection, SQLITE_LIMIT_ATTACHED, 0);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_exec(connection, kMemory, nullptr, nullptr, nullptr);
  RegisterFunctions(connection);
  return connection;
}

}  // namespace

void StatementFinalizer::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

Result::Result(StatementHandle statement) : statement_(std::move(statement)) {
  Next();
  for (int i = 0; i < sqlite3_column_count(statement_.get()); ++i) {
    names_.emplace_back(sqlite3_column_name(statement_.get(), i));
  }
}

void Result::Next() {
  const int stepped = atEnd_ ? SQLITE_DONE : sqlite3_step(statement_.get());
  if (stepped != SQLITE_ROW && stepped != SQLITE_DONE) {
    throw StoreError(StoreFault::Statement, sqlite3_errmsg(sqlite3_db_handle(statement_.get())));
  }
  atEnd_ = stepped == SQLITE_DONE;
}

int Result::Field(std::string_view name) const {
  if (atEnd_) {
    throw StoreError(StoreFault::Statement, "a field read behind the last row");
  }
  const auto isField = [name](const std::string& column) {
    return column.size() == name.size() &&
           sqlite3_strnicmp(column.data(), name.data(), static_cast<int>(name.size())) == 0;
  };
  const auto found = std::find_if(names_.begin(), names_.end(), isField);
  if (found != names_.end()) {
    return static_cast<int>(found - names_.begin());
  }
  throw StoreError(StoreFault::Statement, "no field " + std::string(name));
}

bool Result::IsNull(std::string_view field) const {
  return sqlite3_column_type(statement_.get(), Field(field)) == SQLITE_NULL;
}

std::string Result::Text(std::string_view field) const {
  const int column = Field(field);
  if (sqlite3_column_type(statement_.get(), column) == SQLITE_FLOAT) {
    return DoubleText(sqlite3_column_double(statement_.get(), column));
  }
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
  return text == nullptr ? "" : text;
}

std::int64_t Result::Integer(std::string_view field) const {
  return sqlite3_column_int64(statement_.get(), Field(field));
}

double Result::Number(std::string_view field) const {
  return sqlite3_column_double(statement_.get(), Field(field));
}

bool Result::Flag(std::string_view field) const { return Number(field) != 0; }

std::optional<DateTime> Result::Moment(std::string_view field) const {
  return ParseDateTime(Text(field));
}

void Store::Closer::operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }

Store::Store(sqlite3* connection) : connection_(connection) {}

Store Store::Open(const std::filesystem::path& path) {
  // The engine keeps the journal beside the file itself, wherever a link to it stands.
  const std::filesystem::path file = BehindLinks(path);
  CheckFile(file);
  Store store(OpenConnection(file));
  try {
    const Result tables = store.Query(
        "Select count(*) as found from sqlite_master where type = 'table' and name in "
        "('client_master', 'client_planets', 'group_master', 'settings', 'zodiac_master')");
    if (tables.Integer("found") != 5) {
      throw StoreError(StoreFault::Foreign, "a database of another program");
    }
  } catch (const StoreError& error) {
    throw StoreError(error.Fault() == StoreFault::Statement ? StoreFault::Damaged : error.Fault(),
                     error.what());
  }
  return store;
}

Store Store::Create(const std::filesystem::path& file) {
  constexpr mode_t kPrivate = 0600;
  const int made = ::open(file.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, kPrivate);
  if (made < 0) {
    throw StoreError(StoreFault::Statement, "the database file could not be made");
  }
  ::close(made);
  Store store(OpenConnection(file));
  store.ExecuteScript("pragma application_id = " + WholeText(kApplicationId));
  return store;
}

void Store::Fail(std::string_view what) const {
  throw StoreError(StoreFault::Statement,
                   std::string(what) + ": " + sqlite3_errmsg(connection_.get()));
}

StatementHandle Store::Prepare(const std::string& statement) const {
  sqlite3_stmt* prepared = nullptr;
  const char* tail = nullptr;
  const int done = sqlite3_prepare_v2(connection_.get(), statement.c_str(),
                                      static_cast<int>(statement.size()), &prepared, &tail);
  StatementHandle handle(prepared);
  if (done != SQLITE_OK) {
    Fail("a statement failed");
  }
  if (!handle || !IsBlank({tail, statement.c_str() + statement.size()})) {
    throw StoreError(StoreFault::Statement, "not one statement");
  }
  return handle;
}

Result Store::Query(std::string_view statement) const {
  StatementHandle prepared = Prepare(Translated(statement));
  if (sqlite3_stmt_readonly(prepared.get()) == 0) {
    throw StoreError(StoreFault::Statement, "a reading statement that would write");
  }
  return Result(std::move(prepared));
}

std::int64_t Store::Execute(std::string_view statement) {
  Result result(Prepare(Translated(statement)));
  while (!result.AtEnd()) {
    result.Next();
  }
  return sqlite3_changes64(connection_.get());
}

void Store::BackUpTo(const std::filesystem::path& file) const {
  const Store copy(OpenConnection(file));
  constexpr int kAllPages = -1;
  sqlite3_backup* backup =
      sqlite3_backup_init(copy.connection_.get(), "main", connection_.get(), "main");
  if (backup != nullptr) {
    sqlite3_backup_step(backup, kAllPages);
  }
  if (backup == nullptr || sqlite3_backup_finish(backup) != SQLITE_OK) {
    copy.Fail("the database could not be copied");
  }
}

void Store::ExecuteScript(const std::string& script) {
  if (sqlite3_exec(connection_.get(), script.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    Fail("a schema statement failed");
  }
}

void Store::InsertRows(const std::string& table, const std::vector<std::string>& columns,
                       const std::vector<std::vector<std::string>>& rows) {
  const std::vector<std::string> places(columns.size(), "?");
  const StatementHandle insert = Prepare("insert into " + table + " (" + Join(columns, ", ") +
                                         ") values (" + Join(places, ", ") + ")");
  for (const std::vector<std::string>& row : rows) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      sqlite3_bind_text(insert.get(), static_cast<int>(i) + 1, row.at(i).c_str(),
                        static_cast<int>(row.at(i).size()), SQLITE_STATIC);
    }
    if (sqlite3_step(insert.get()) != SQLITE_DONE) {
      Fail("a row was refused");
    }
    sqlite3_reset(insert.get());
  }
}

StatementLimit::StatementLimit(const Store& store, std::chrono::milliseconds time)
    : connection_(store.connection_.get()), end_(std::chrono::steady_clock::now() + time) {
  constexpr int kStepsBetween = 1000;
  // The clock is read between the engine's steps, so that none of them may take long.
  constexpr int kLongestValue = 16'000'000;
  longestValue_ = sqlite3_limit(connection_, SQLITE_LIMIT_LENGTH, kLongestValue);
  sqlite3_progress_handler(connection_, kStepsBetween, &StatementLimit::IsOver, this);
}

StatementLimit::~StatementLimit() {
  sqlite3_progress_handler(connection_, 0, nullptr, nullptr);
  sqlite3_limit(connection_, SQLITE_LIMIT_LENGTH, longestValue_);
}

int StatementLimit::IsOver(void* limit) {
  return std::chrono::steady_clock::now() >= static_cast<StatementLimit*>(limit)->end_ ? 1 : 0;
}

Batch::Batch(Store& store) : store_(store) { store_.ExecuteScript("begin immediate"); }

Batch::~Batch() {
  if (!open_) {
    return;
  }
  try {
    Commit();
  } catch (const StoreError&) {
    sqlite3_exec(store_.connection_.get(), "rollback", nullptr, nullptr, nullptr);
  }
}

void Batch::Commit() {
  store_.ExecuteScript("commit");
  open_ = false;
}

void Batch::Undo() {
  open_ = false;
  // The engine itself takes a batch back where the disk is full: then there is nothing to undo.
  if (sqlite3_get_autocommit(store_.connection_.get()) == 0) {
    store_.ExecuteScript("rollback");
  }
}

void SyncStore(Store& store) { store.Query("Select date()"); }

}  // namespace orvex::core
