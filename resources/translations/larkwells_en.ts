<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
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
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good Morning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good Night</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Special Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Defaults</source>
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
        <source>Save as Text File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>View</name>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fav</source>
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
</context>
</TS>
