<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>Backward</source>
        <translation>Backward</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Set Time</source>
        <translation>Set Time</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Years</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Months</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Days</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Hours</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Seconds</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hour</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Second</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>A date would leave the range from 0001 to 9999.</source>
        <translation>A date would leave the range from 0001 to 9999.</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Thumbnail</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Edited</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>FileName</source>
        <translation>FileName</translation>
    </message>
    <message>
        <source>DateTimeOriginal</source>
        <translation>DateTimeOriginal</translation>
    </message>
    <message>
        <source>DateTimeDigitized</source>
        <translation>DateTimeDigitized</translation>
    </message>
    <message>
        <source>DateTime</source>
        <translation>DateTime</translation>
    </message>
    <message>
        <source>No Date-Time</source>
        <translation>No Date-Time</translation>
    </message>
    <message>
        <source>LocalST_ImagesWindowTitle</source>
        <translation>%1 (%2 images)</translation>
    </message>
    <message>
        <source>Restore Clicked File</source>
        <translation>Restore Clicked File</translation>
    </message>
    <message>
        <source>Restore Selected Files</source>
        <translation>Restore Selected Files</translation>
    </message>
    <message>
        <source>Restore All Files</source>
        <translation>Restore All Files</translation>
    </message>
    <message>
        <source>Date Time Original:</source>
        <translation>Date Time Original:</translation>
    </message>
    <message>
        <source>Date Time Digitized:</source>
        <translation>Date Time Digitized:</translation>
    </message>
    <message>
        <source>Date Time Edited:</source>
        <translation>Date Time Edited:</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation>Synchronize</translation>
    </message>
    <message>
        <source>The document has unsaved changes. Do you want to save the changes before closing?</source>
        <translation>The document &quot;%1&quot; has unsaved changes. Do you want to save the changes before closing?</translation>
    </message>
    <message>
        <source>There are multiple documents with unsaved changes. Do you want to save them before closing?</source>
        <translation>There are multiple documents with unsaved changes. Do you want to save them before closing?</translation>
    </message>
    <message>
        <source>Your changes will be lost if you don't save them.</source>
        <translation>Your changes will be lost if you don't save them.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Don't Save</source>
        <translation>Don't Save</translation>
    </message>
    <message>
        <source>Save Completed:</source>
        <translation>Save Completed: %1</translation>
    </message>
    <message>
        <source>Save a file Failed.</source>
        <translation>Save a file Failed. (%1)</translation>
    </message>
    <message>
        <source>Save files Failed.</source>
        <translation>Save files Failed. (%1 files)</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Open Files</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Loading files</source>
        <translation>Loading %1 files...</translation>
    </message>
    <message>
        <source>%@ / %lu</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>You are opening multiple files.</source>
        <translation>You are opening %1 files.</translation>
    </message>
    <message>
        <source>How would you like to open them?</source>
        <translation>How would you like to open them?</translation>
    </message>
    <message>
        <source>Open in One Window</source>
        <translation>Open in One Window</translation>
    </message>
    <message>
        <source>Open in Separate Windows</source>
        <translation>Open in Separate Windows</translation>
    </message>
    <message>
        <source>Could not be opened.</source>
        <translation>&quot;%1&quot; could not be opened.</translation>
    </message>
    <message>
        <source>It uses a file format that Lumidate does not recognize.</source>
        <translation>It uses a file format that Lumidate does not recognize.</translation>
    </message>
    <message>
        <source>An unknown cause.</source>
        <translation>An unknown cause.</translation>
    </message>
    <message>
        <source>The files could not be opened.</source>
        <translation>The files could not be opened.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Hide Information</source>
        <translation>Hide Information</translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation>Show Information</translation>
    </message>
    <message>
        <source>Multiple Values</source>
        <translation>Multiple Values</translation>
    </message>
    <message>
        <source>days</source>
        <translation>%1 days</translation>
    </message>
    <message>
        <source>day</source>
        <translation>%1 day</translation>
    </message>
    <message>
        <source>Day Count Calculator</source>
        <translation>Day Count Calculator</translation>
    </message>
    <message>
        <source>Retrieve altitude value from the Geospatial Information Authority of Japan.</source>
        <translation>Retrieve altitude value from the Geospatial Information Authority of Japan.</translation>
    </message>
</context>
</TS>
