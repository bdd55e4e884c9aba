<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>MainBundle</name>
    <message numerus="yes">
        <source>%n devices watched</source>
        <translation>
            <numerusform>%n device watched</numerusform>
            <numerusform>%n devices watched</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>shuts down after %n minutes</source>
        <translation>
            <numerusform>shuts down after %n minute</numerusform>
            <numerusform>shuts down after %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>shuts down after %n seconds</source>
        <translation>
            <numerusform>shuts down after %n second</numerusform>
            <numerusform>shuts down after %n seconds</numerusform>
        </translation>
    </message>
</context>
</TS>
