// A client as typed into the client dialog: checks, chart and rows.
#pragma once

#include <cstdint>
#include <string>

#include "chart/chart_computation.h"
#include "core/save_result.h"
#include "core/session.h"

namespace orvex::chart {

// The fields of the client dialog, numbers as texts.
struct ClientForm {
  std::string FullName;
  std::string Email;
  std::string Mobile;
  std::string Comments;
  core::DateTime Birth;
  std::string Gender = "M";  // "M", "F" or "O"
  bool Horary = false;
  std::string HoraryNumber = "1";
  std::string HoraryQuestion;
  bool AscendantByHand = false;
  std::string AscendantDegree;
  std::int32_t CityId = 0;  // 0: none chosen
  bool CityInSight = true;  // the city's row is selected in the list that is shown
  std::string Latitude;
  std::string Longitude;
  std::string Offset;
};

// The place of a city row, as the dialog copies it into the fields.
struct CityPlace {
  std::string Latitude;
  std::string Longitude;
  std::string Offset;
};

// The place of a city that the city lists show; nothing for any other id.
std::optional<CityPlace> PlaceOfCity(const core::Session& session, std::int32_t cityId);

// The form of a new client: the user city and the present moment.
ClientForm OpenAddClient(const core::Session& session);

// The form of a stored client; nothing where the client is gone, after the program's message.
std::optional<ClientForm> OpenEditClient(core::Session& session, std::int32_t clientId);

// Takes the place of the chosen city into the form.
void SelectCity(const core::Session& session, std::int32_t cityId, ClientForm& form);

// The second in which a new client counts as created. Its row is found again by it.
enum class Creation {
  AtTheClocksSecond,  // of two clients of one second the first one's row is found for both
  InASecondOfItsOwn   // the first second from now on in which no client was created
};

// Saves a new client of a group with its chart: one client_master row and nine client_planets rows
// in one batch. The first failed check, or a chart that can't be computed or written, is refused.
core::SaveResult SaveNewClient(core::Session& session, const ClientForm& form, std::int32_t groupId,
                               Creation creation = Creation::AtTheClocksSecond);

// Saves the changes of a stored client. Its group and its moment of creation stay.
core::SaveResult SaveClientChanges(core::Session& session, const ClientForm& form,
                                   std::int32_t clientId);

// What a computed chart needs beside its rows to be stored as a client.
struct ClientRecord {
  ClientForm Form;
  std::int32_t GroupId = 0;
  ChartResult Chart;
};

// The chart of a form that passes the checks, or why there is none.
struct CheckedChart {
  ChartResult Chart;
  std::optional<core::Refusal> Refused;
};

// Checks a form and computes its chart; nothing is written.
CheckedChart CheckAndCompute(core::Session& session, const ClientForm& form);

// The moment in UT for which the chart of a form is cast, by ChartMomentUt; nothing where a text is
// no number, there is no such city or the moment leaves the years 100 to 9999.
std::optional<core::DateTime> MomentUtOf(const core::Session& session, const ClientForm& form);

// Writes the rows of a client inside a batch of the caller and gives the id. StoreError where a
// statement fails.
std::int32_t InsertClientRows(core::Session& session, const ClientRecord& record);

// Writes a new client whose chart is computed. StoreError where a statement fails; what was written
// before it stays.
std::int32_t InsertClient(core::Session& session, const ClientRecord& record, Creation creation);

}  // namespace orvex::chart
