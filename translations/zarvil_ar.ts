<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AboutTab</name>
    <message>
        <source>Zarvil</source>
        <translation>Zarvil</translation>
    </message>
    <message>
        <source>Watches the power devices of this computer and shuts it down in order when the power fails.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the maker&apos;s web site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the support page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes an e-mail to the makers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follow us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the maker&apos;s page on a social network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recommend Zarvil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Composes a post about Zarvil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Check for updates auto&amp;matically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The agent looks for new versions by itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look for a new version now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The result is shown by Zarvil.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for &amp;Updates Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks the agent to look for a new version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>الصيانة</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>What Zarvil has done and when.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View &amp;Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the agent&apos;s log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uninstall Zarvil</source>
        <translation>إزالة تثبيت Zarvil</translation>
    </message>
    <message>
        <source>Removes Zarvil, this pane and the settings. Your scripts are kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Un&amp;install…</source>
        <translation>إزالة التثبيت…</translation>
    </message>
    <message>
        <source>Asks before anything is removed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AlertsTab</name>
    <message>
        <source>E-mail</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Send an &amp;e-mail when the power fails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The agent sends the message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add&amp;ress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Return to store the address. Only a complete address is stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name@example.org</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pushover</source>
        <translation>Pushover</translation>
    </message>
    <message>
        <source>What is Pushover?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the Pushover web site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send a &amp;push notification when the power fails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pushover delivers notifications to your phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To your phone, through the Pushover service.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your Pushover user key. Press Return to store it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pushover user ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De&amp;vice ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of one of your devices; leave it empty for all. Press Return to store it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>كل الأجهزة</translation>
    </message>
    <message>
        <source>Pushover device ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave it empty to reach all your devices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send a &amp;Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sends a test notification and shows whether the IDs are right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check under way</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Bundle</name>
    <message>
        <source>&quot;%1&quot; is not a preference pane: its Contents/Info.json cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: Contents/Info.json is not valid JSON at byte %2 (%3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: Contents/Info.json does not hold an object.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: the text &quot;%2&quot; is missing in Contents/Info.json.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: its library &quot;%2&quot; is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; was made for another program: its library offers &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The library of the preference pane &quot;%1&quot; cannot be loaded: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: its library offers the class &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DevicesTab</name>
    <message>
        <source>Tick a device to have Zarvil watch it. Untick it to stop.</source>
        <translation>ضع علامة على جهاز ليراقبه Zarvil، وأزلها للتوقف.</translation>
    </message>
    <message>
        <source>&amp;Connected</source>
        <translation>متصلة</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>متصلة</translation>
    </message>
    <message>
        <source>&amp;Watched</source>
        <translation>قيد المراقبة</translation>
    </message>
    <message>
        <source>Watched</source>
        <translation>قيد المراقبة</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Shutdown</source>
        <translation>إيقاف التشغيل</translation>
    </message>
    <message>
        <source>Shut down a&amp;fter</source>
        <translation>أوقف التشغيل بعد</translation>
    </message>
    <message>
        <source>How long to wait after a power failure before shutting down. Press Return to store it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shutdown delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the delay in minutes or in seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delay in minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit applications by force</source>
        <translation>أنهِ التطبيقات قسرًا</translation>
    </message>
    <message>
        <source>Ends applications that do not quit by themselves; unsaved changes in them are lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved changes in them are lost.</source>
        <translation>تُفقد التغييرات غير المحفوظة فيها.</translation>
    </message>
    <message>
        <source>Test the shutdown</source>
        <translation>اختبار الإيقاف</translation>
    </message>
    <message>
        <source>Test under way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Test Shutdown</source>
        <translation>جرّب الإيقاف</translation>
    </message>
    <message>
        <source>Plays the shutdown sequence without shutting down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>الرسائل</translation>
    </message>
    <message>
        <source>&amp;Warn me before shutting down</source>
        <translation>نبّهني قبل إيقاف التشغيل</translation>
    </message>
    <message>
        <source>Shows a message with a countdown when the power has failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A message counts down to the shutdown.</source>
        <translation>تعرض رسالة العد التنازلي حتى الإيقاف.</translation>
    </message>
    <message>
        <source>The message hides itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shown as the agent has it; it is set in the shutdown message itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set in the message itself. The countdown goes on when it is hidden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Notify me when the power fails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows a desktop notification at the moment of a power failure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A desktop notification at the moment of the failure.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell me when a device is &amp;connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows a message when a power device is plugged in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The message goes away by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Startup and status icon</source>
        <translation>بدء التشغيل وأيقونة الحالة</translation>
    </message>
    <message>
        <source>&amp;Launch Zarvil at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts the agent whenever you log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protection starts as soon as you log in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Zarvil &amp;in the status bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows an icon of the agent in the status bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Monochrome icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws the status-bar icon in one color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Preferences</source>
        <translation>التفضيلات</translation>
    </message>
    <message>
        <source>There is no preference pane in &quot;%1&quot; and none in &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preferences are open already, but their window does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainBundle</name>
    <message numerus="yes">
        <source>%n devices watched</source>
        <translation>
            <numerusform>لا أجهزة مراقَبة</numerusform>
            <numerusform>جهاز واحد مراقَب</numerusform>
            <numerusform>جهازان مراقَبان</numerusform>
            <numerusform>%n أجهزة مراقَبة</numerusform>
            <numerusform>%n جهازًا مراقَبًا</numerusform>
            <numerusform>%n جهاز مراقَب</numerusform>
        </translation>
    </message>
    <message>
        <source>A test is running. Nothing is shut down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Administrator rights: checking</source>
        <translation>صلاحيات المدير: جارٍ التحقق</translation>
    </message>
    <message>
        <source>Administrator rights: locked</source>
        <translation>صلاحيات المدير: مقفلة</translation>
    </message>
    <message>
        <source>Administrator rights: unlocked</source>
        <translation>صلاحيات المدير: مفتوحة</translation>
    </message>
    <message>
        <source>Can&apos;t execute empty script!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot be changed while the warning hides itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect a power supply with a data cable. It appears here by itself.</source>
        <translation>صِل مصدر طاقة بكابل بيانات، وسيظهر هنا تلقائيًا.</translation>
    </message>
    <message>
        <source>Connection timeout! Check your Internet connection!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete this script and its file at once. This cannot be undone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Edit the title and the text in place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Editing. Done saves the title and the text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed with exit status %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid settings! Check your User ID and Device ID(if any)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch it to see your devices and change the settings.</source>
        <translation>شغّله لترى أجهزتك وتغيّر الإعدادات.</translation>
    </message>
    <message>
        <source>Launching it…</source>
        <translation>جارٍ التشغيل…</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for Zarvil…</source>
        <translation>جارٍ البحث عن Zarvil…</translation>
    </message>
    <message>
        <source>Minutes from the power failure. Return stores the number.</source>
        <translation>دقائق من انقطاع التيار. يحفظ مفتاح الإدخال الرقم.</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>لا جهاز متصل</translation>
    </message>
    <message>
        <source>No device is watched, so a power failure goes unnoticed.</source>
        <translation>لا يُراقَب أي جهاز، لذا لن يُلاحَظ انقطاع التيار.</translation>
    </message>
    <message>
        <source>No device watched</source>
        <translation>لا جهاز مراقَب</translation>
    </message>
    <message>
        <source>No devices to show</source>
        <translation>لا أجهزة لعرضها</translation>
    </message>
    <message>
        <source>No scripts to show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scripts yet</source>
        <translation>لا سكربتات بعد</translation>
    </message>
    <message>
        <source>No serial number</source>
        <translation>بلا رقم تسلسلي</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not stored while Zarvil is not running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing happens when the power fails.</source>
        <translation>لا يحدث شيء عند انقطاع التيار.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Only a number of 0 or more is taken, such as %1. The delay stays as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plays the whole sequence without shutting down.</source>
        <translation>يعرض التسلسل كاملًا دون إيقاف التشغيل.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Run this script once, now. The window waits until it has ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>يعمل…</translation>
    </message>
    <message>
        <source>Save the title and the text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scripts are off</source>
        <translation>السكربتات متوقفة</translation>
    </message>
    <message>
        <source>Seconds from the power failure. Return stores the number.</source>
        <translation>ثوانٍ من انقطاع التيار. يحفظ مفتاح الإدخال الرقم.</translation>
    </message>
    <message>
        <source>Settings are valid!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stored with Return, once it is complete and ends in two to four letters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the protection on to test it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text of the script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The operation could not be completed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The session bus does not answer, so Zarvil cannot be reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test has ended. Nothing was shut down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a script of this title already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They are kept. Switch them on to see them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This script is empty. Edit it before you run it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This script is too large to be edited here (%1). Its text stays as it is; its title can be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This system has no authority that could unlock it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick a connected device. Until then a power failure goes unnoticed.</source>
        <translation>ضع علامة على جهاز متصل. وحتى ذلك الحين لن يُلاحَظ انقطاع التيار.</translation>
    </message>
    <message>
        <source>Title of the script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a title above to create the first one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknow error!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>جهاز بلا اسم</translation>
    </message>
    <message>
        <source>Your devices are listed here while Zarvil runs.</source>
        <translation>تُعرض أجهزتك هنا ما دام Zarvil يعمل.</translation>
    </message>
    <message>
        <source>Your scripts are listed here while Zarvil runs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zarvil is not installed.</source>
        <translation>Zarvil غير مثبّت.</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>دقائق</translation>
    </message>
    <message>
        <source>not needed for any setting here</source>
        <translation>لا يحتاج إليها أي إعداد هنا</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>ثوانٍ</translation>
    </message>
    <message numerus="yes">
        <source>shuts down after %n minutes</source>
        <translation>
            <numerusform>إيقاف فوري</numerusform>
            <numerusform>إيقاف بعد دقيقة</numerusform>
            <numerusform>إيقاف بعد دقيقتين</numerusform>
            <numerusform>إيقاف بعد %n دقائق</numerusform>
            <numerusform>إيقاف بعد %n دقيقة</numerusform>
            <numerusform>إيقاف بعد %n دقيقة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>shuts down after %n seconds</source>
        <translation>
            <numerusform>إيقاف فوري</numerusform>
            <numerusform>إيقاف بعد ثانية</numerusform>
            <numerusform>إيقاف بعد ثانيتين</numerusform>
            <numerusform>إيقاف بعد %n ثوانٍ</numerusform>
            <numerusform>إيقاف بعد %n ثانية</numerusform>
            <numerusform>إيقاف بعد %n ثانية</numerusform>
        </translation>
    </message>
    <message>
        <source>shuts down at once</source>
        <translation>إيقاف فوري</translation>
    </message>
    <message>
        <source>The script “%1” is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Administrator rights</source>
        <translation>صلاحيات المدير</translation>
    </message>
    <message>
        <source>Alerts by e-mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alerts through Pushover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An alert reaches you only if your router and modem still have power, so connect them to the power supply too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applications that ask whether to save can hold a shutdown up until the battery is empty. By force they are ended without asking, and what was not saved is lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks first, then removes Zarvil, this pane and the settings. Your scripts are kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choosing devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect a power supply with its data cable. It appears under Connected. Tick it, and it moves to Watched. Untick it, and Zarvil no longer watches it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devices are listed while Zarvil runs. Launch it with the button above the tabs. A power supply without a data cable cannot be watched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each script is a file of its own in the folder %1, named after its title with the ending .zvscript. Copy that folder to keep them safe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends applications that do not quit by themselves, so that none of them can hold the shutdown up. What was not saved in them is lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goes through the shutdown as if the power had failed, and stops before the computer would be shut down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help: About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help: Alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help: Devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help: General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help: Scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If no device appears</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the protection is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the network up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New versions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pushover is a service that brings messages to your phone. You need an account there; its user ID goes into the first field. With a device ID only that device gets the message, otherwise all of yours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quitting applications by force</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes Zarvil, this pane and the settings, after it has asked you. Your scripts stay in the folder %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run starts the script at once, without a power failure, and does all that it says. If it fails, its exit status and its last error are shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send a Test sends a message at once and tells you whether it went out. IDs that Pushover does not know are cleared and have to be typed again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the delay in minutes or in seconds. The delay itself stays the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows whether the warning hides itself. You choose that in the warning, so it cannot be changed here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows whether your account may administer this computer. No setting here needs the lock to be open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts Zarvil, the program that watches the power, or ends it. While it does not run, nothing is watched and no setting can be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches the protection. While it is off, Zarvil does nothing when the power fails. The choice takes effect at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key of your account at Pushover. You find it on Pushover&apos;s page once you have logged in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The lock below the tabs shows whether your account may administer this computer. No setting here needs it to be open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of one of your devices at Pushover. Leave it empty, and all of them get the message.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The time between the power failure and the shutdown. Numbers of 0 or more are stored with Return; anything else leaves the last value as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The title of a new script. It becomes the name of the script&apos;s file, so that no two scripts can have the same one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This much time passes between the power failure and the shutdown. Choose seconds or minutes with the switch, type a number and press Return. With 0 the computer is shut down at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trying Pushover out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trying a script out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a title, press Create, then Edit. A text that begins with #! is run by the program named in that line, any other by the shell. Done saves it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uninstalling Zarvil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a test does</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What happens when the power fails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What scripts are for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When a watched device reports a power failure, Zarvil warns you, runs your scripts, sends the alerts that you have chosen and, after the delay, shuts the computer down. You choose each of these in the other tabs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where scripts lie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing a script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zarvil goes on running and shows your devices, but does nothing when the power fails. Switch it on with the switch at the top.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zarvil goes through the shutdown as if the power had failed, and stops before the computer would be shut down. The protection must be on for a test.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zarvil looks for new versions itself, at your word or by itself, and tells you what it has found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zarvil runs them when the power fails, before it shuts the computer down: to save your work, for example, or to stop a server in order.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zarvil sends a message to the address when the power fails. Type the whole address and press Return; an incomplete one is not stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zarvil writes down what it does and when: power failures, shutdowns and alerts. Look there first if something went otherwise than you expected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Cancel editing “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End editing without saving. Esc leads here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnected: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not create the folder “%1”: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not prepare the script for running: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not remove “%1”: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not save the file “%1”: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not start the script&apos;s interpreter “%1”: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal %1 (%2) ended the script.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal %1 ended the script.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The script contains a NUL character, so it cannot be run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The script failed with exit status %1 and gave no reason.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The script has ended, but its result got lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it would be larger than files may be here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its name contains a character that is not allowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its symbolic links lead in a circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>something of that name is already there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk reported a fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>you do not have permission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>your share of the disk is used up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ended without an error.</source>
        <translation>انتهى دون خطأ.</translation>
    </message>
    <message>
        <source>Administrator rights: %1 missing</source>
        <translation>صلاحيات المدير: %1 غير موجود</translation>
    </message>
</context>
<context>
    <name>PaneView</name>
    <message>
        <source>Zarvil</source>
        <translation>Zarvil</translation>
    </message>
    <message>
        <source>Protection is on</source>
        <translation>الحماية مفعّلة</translation>
    </message>
    <message>
        <source>Protection is off</source>
        <translation>الحماية متوقفة</translation>
    </message>
    <message>
        <source>Looking for Zarvil</source>
        <translation>جارٍ البحث عن Zarvil</translation>
    </message>
    <message>
        <source>Choose devices</source>
        <translation>اختيار الأجهزة</translation>
    </message>
    <message>
        <source>Shows the tab where you choose the devices to watch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches the power-failure protection on or off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power protection</source>
        <translation>الحماية من انقطاع التيار</translation>
    </message>
    <message>
        <source>Launching Zarvil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zarvil is running</source>
        <translation>Zarvil يعمل</translation>
    </message>
    <message>
        <source>Zarvil is not running</source>
        <translation>Zarvil لا يعمل</translation>
    </message>
    <message>
        <source>Launch Zarvil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts or quits the background agent that watches the power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Devices</source>
        <translation>أجهزة</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>تنبيهات</translation>
    </message>
    <message>
        <source>&amp;Scripts</source>
        <translation>سكربتات</translation>
    </message>
    <message>
        <source>A&amp;bout</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>Administrator rights</source>
        <translation>صلاحيات المدير</translation>
    </message>
    <message>
        <source>Shows whether this account may administer the computer. No setting of this pane needs the lock to be open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Explains this tab (F1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>o</source>
        <comment>The letter of the title “Protection is on” or “off” that is its access key; - for none</comment>
        <translation>-</translation>
    </message>
</context>
<context>
    <name>PolkitAuthorization</name>
    <message>
        <source>Administrator rights cannot be checked: the authorization service (polkit) is not available.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The authentication was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Administrator rights cannot be checked: Zarvil&apos;s policy for the authorization service (polkit) is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Administrator rights cannot be checked: the authorization service (polkit) has failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No authentication agent is running that could ask for an administrator&apos;s password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An administrator&apos;s password is needed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The authentication has failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You do not have administrator rights.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>RTL</translation>
    </message>
</context>
<context>
    <name>ScriptsTab</name>
    <message>
        <source>&amp;Run these scripts when the power fails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The agent runs the scripts before the shutdown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zarvil runs them before it shuts the computer down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;w script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Title of the new script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title of the new script; it is also the name of its file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>إنشاء</translation>
    </message>
    <message>
        <source>Creates an empty script of this title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>السكربتات</translation>
    </message>
</context>
<context>
    <name>UninstallPanel</name>
    <message>
        <source>Uninstall Zarvil</source>
        <translation>إزالة تثبيت Zarvil</translation>
    </message>
    <message>
        <source>Uninstall Zarvil?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zarvil quits, and these are removed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>•  the Zarvil application
•  this pane
•  the settings of Zarvil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your scripts are kept. This window closes at once, and none of it can be undone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>إزالة التثبيت</translation>
    </message>
</context>
<context>
    <name>zarvil::BusConnection</name>
    <message>
        <source>The message bus does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the message bus was lost</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zarvil::host::HostWindow</name>
    <message>
        <source>Preference panes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broken pane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>التفضيلات</translation>
    </message>
</context>
<context>
    <name>zarvil::qt::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What Is &amp;This?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Explains the control of the window that you click next</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
