<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AboutEditView</name>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AboutImportView</name>
    <message>
        <source>About File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an About File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The about file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AboutNewView</name>
    <message>
        <source>New Article</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An article shows a heading and its text only when its name contains “Good Morning” or “Good Night” together with “Preface”, “Acknowledgements” or “Authors”. With any other name it opens empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AboutTableView</name>
    <message>
        <source>New Article</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No articles. Tap + to write one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChooserPath</name>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CoverMenu</name>
    <message>
        <source>Favorites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate &amp; Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import &amp; Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CoverView</name>
    <message>
        <source>The Larkwells Book</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Larkwells Book cover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DefaultsView</name>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page text size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen colour: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wallpaper behind pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List text size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wallpaper behind list rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wallpapers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reader Wallpapers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List Wallpapers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Night Reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Aloud Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faster</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditNotesView</name>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subject</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditNotesViewController</name>
    <message>
        <source>Discard changes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you typed in this note will be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditSpecialDaysView</name>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportLarkwellFilesView</name>
    <message>
        <source>Update Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a Backup of Your Writing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backups (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back Up My Writing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore My Writing…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportView</name>
    <message>
        <source>Create Export File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The export file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportViewController</name>
    <message>
        <source>Export Pages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FavoriteBox</name>
    <message>
        <source>Favorite</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FontPickerView</name>
    <message>
        <source>Filter fonts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No font matches</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FontSizeStepper</name>
    <message>
        <source>Text size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GMNTableViewCell</name>
    <message>
        <source>favorite</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>The Larkwells Book</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainTableView</name>
    <message>
        <source>No favorites yet. Tick the box on a page you love and it will wait for you here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No pages for this day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to Date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NavigationBar</name>
    <message>
        <source>‹ Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NoteDatePicker</name>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NotesTableView</name>
    <message>
        <source>New Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No notes match.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No notes yet. Tap + to write one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Previous Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReadAloudButton</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Aloud</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReminderRows</name>
    <message>
        <source>%1 time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Morning Reminder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Night Reminder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SaveCopyDialog</name>
    <message>
        <source>Save a Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SaveTextDialog</name>
    <message>
        <source>Save as Text File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SearchTableViewController</name>
    <message>
        <source>No pages match</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 page matches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pages match</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SearchView</name>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share the page</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsViewController</name>
    <message>
        <source>Rate &amp; Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate The Larkwells Book</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share The App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share The Web Site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visit The Web Site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShareSheet</name>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as Text File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open With…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share as Picture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sharing</name>
    <message>
        <source>The mail program could not be started: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ended with status %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text could not be saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files cannot be saved here: the file dialog is not installed (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be saved to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be opened: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpecialDaysExportViewController</name>
    <message>
        <source>Export Special Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larkwell Books Special Days Update Text File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attachment: Larkwell Books Special Days Text File</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpecialDaysTableView</name>
    <message>
        <source>No special days.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UndoImportButton</name>
    <message>
        <source>Undo Import</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateFileTarget</name>
    <message>
        <source>The file %1 could not be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No File Picker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choosing a file needs the package qml6-module-qt-labs-folderlistmodel.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>View</name>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send as text message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WallpaperTableView</name>
    <message>
        <source>No wallpaper of this set is in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last wallpaper alone is hardly ever shown: turn on another</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The Larkwells Book: a morning and a night page for every day of the year.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the database and the preferences live.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use DIR as the application bundle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load every page and fail on any QML warning.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try &apos;larkwells --help&apos; for the options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the first line of today&apos;s morning or night page as a desktop notification; a click on it opens the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --remind: wait for this time of day (HH:MM), every day, instead of reminding now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the reader on today&apos;s morning or night page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--at goes with --remind.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--open takes today-morning or today-night.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The book has no page for today.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
