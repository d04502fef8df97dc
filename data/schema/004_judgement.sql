-- What a judgement asks about: the house groups of the matters, and the events of a life by which a
-- birth time is tried. Lists of houses are ascending, with blanks between them.
create table if not exists matter_master (
  id integer primary key autoincrement,
  name text(50) collate nocase,
  maincusp integer,
  supporting text(50),
  denying text(50),
  source text(100)
);

create table if not exists client_event (
  id integer primary key autoincrement,
  clientid integer,
  eventdate text,
  matterid integer,
  remark text(250)
);

create index if not exists client_event_by_client on client_event (clientid);
pragma user_version = 4;
