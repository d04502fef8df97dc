-- What the search and the lists order and narrow by.
create index if not exists client_master_by_name on client_master (fullname);
create index if not exists client_master_by_birth on client_master (birthdate);
create index if not exists client_remedy_by_date on client_remedy (remedydate);
pragma user_version = 3;
