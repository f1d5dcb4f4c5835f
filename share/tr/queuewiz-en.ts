<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>PPDTreeView</name>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>You selected %n option that is in conflict. Resolve the conflict before you continue:
</numerusform>
            <numerusform>You selected %n options that are in conflict. Resolve the conflict before you continue:
</numerusform>
        </translation>
    </message>
</context>
</TS>
