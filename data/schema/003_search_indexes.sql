-- What the search narrows by. No index on names: the engine would walk it to order a few rows of many,
-- reading the whole table in the order of the names.
create index if not exists client_master_by_birth on client_master (birthdate);
create index if not exists client_remedy_by_date on client_remedy (remedydate);
pragma user_version = 3;
