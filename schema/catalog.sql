-- Application catalogue: the classes and applications that the traffic
-- classifier knows. Rows are read by position; text is stored as UTF-8.

PRAGMA encoding = 'UTF-8';

BEGIN;

CREATE TABLE App_Class (
    Id INTEGER PRIMARY KEY,
    Name TEXT, Name_En TEXT,
    Priority INTEGER, -- not read
    Mark TEXT
);

-- Features: the text by which a behaviour rule names the application.
CREATE TABLE App_Info (
    Id INTEGER PRIMARY KEY,
    Class_Id INTEGER, Name TEXT, Name_En TEXT, Features TEXT, Mark TEXT
);

COMMIT;
