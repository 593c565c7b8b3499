-- Stands in the header of the file, where desktops find it: "Lant" in ASCII.
PRAGMA application_id = 1281453684;
CREATE TABLE "Data" (
    "Name" TEXT,
    "Action" TEXT,
    "Query" TEXT,
    "Method" TEXT,
    "Type" TEXT,
    "Selected" BOOLEAN,
    "Version" INTEGER
);
CREATE TABLE "Categories" (
    "Name" TEXT,
    "Categories" TEXT,
    "Selected" TEXT
);
CREATE TABLE "Project" (
    "txtURL" VARCHAR(255),
    "txtEmail" VARCHAR(255),
    "txtName1" VARCHAR(255),
    "txtName2" VARCHAR(255),
    "txtCompany" VARCHAR(255),
    "txtStreet" VARCHAR(255),
    "txtState" VARCHAR(255),
    "txtCountry" VARCHAR(255),
    "txtCity" VARCHAR(255),
    "txtZip" VARCHAR(255),
    "txtPhone" VARCHAR(255),
    "txtFax" VARCHAR(255),
    "txtTitle" VARCHAR(255),
    "txtKey1" VARCHAR(255),
    "txtKey2" VARCHAR(255),
    "txtKey3" VARCHAR(255),
    "txtKey4" VARCHAR(255),
    "txtKey5" VARCHAR(255),
    "txtKey6" VARCHAR(255),
    "txtLimit" VARCHAR(255),
    "txtDesc" VARCHAR(255),
    "Combo2" VARCHAR(255),
    "txttrazim" VARCHAR(255),
    "chkMultiSameDesc" SMALLINT,
    "Check1" SMALLINT,
    "Check3" SMALLINT
);
CREATE TABLE "Stats" (
    "Date" TEXT,
    "PageUrl" TEXT,
    "Email" TEXT,
    "Selected" SMALLINT,
    "Successful" SMALLINT,
    "Failed" SMALLINT,
    "Time" INTEGER,
    "Successful Submissions" TEXT,
    "Failed Submissions" TEXT
);
