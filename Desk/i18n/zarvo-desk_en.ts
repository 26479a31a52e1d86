<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
  <context>
    <name>desk</name>
    <message numerus="yes">
      <source>%n card(s) of the address book cannot be read: %1</source>
      <translation>
        <numerusform>%n card of the address book cannot be read: %1</numerusform>
        <numerusform>%n cards of the address book cannot be read: %1</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n copies</source>
      <translation>
        <numerusform>%n copy</numerusform>
        <numerusform>%n copies</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n page(s)</source>
      <translation>
        <numerusform>%n page</numerusform>
        <numerusform>%n pages</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n page(s) cannot be drawn; there may be no room left for temporary files.</source>
      <translation>
        <numerusform>%n page cannot be drawn; there may be no room left for temporary files.</numerusform>
        <numerusform>%n pages cannot be drawn; there may be no room left for temporary files.</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n sheet side(s)</source>
      <translation>
        <numerusform>%n sheet side</numerusform>
        <numerusform>%n sheet sides</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n sheet(s)</source>
      <translation>
        <numerusform>%n sheet</numerusform>
        <numerusform>%n sheets</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n sheet(s) after page %1</source>
      <translation>
        <numerusform>%n sheet after page %1</numerusform>
        <numerusform>%n sheets after page %1</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>Nothing has come from the programs that convert the document for %n second(s); they have been ended.</source>
      <translation>
        <numerusform>Nothing has come from the programs that convert the document for %n second; they have been ended.</numerusform>
        <numerusform>Nothing has come from the programs that convert the document for %n seconds; they have been ended.</numerusform>
      </translation>
    </message>
  </context>
</TS>
