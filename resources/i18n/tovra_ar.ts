<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AccountPage</name>
    <message>
        <source>Enter account and password.</source>
        <translation>أدخل الحساب وكلمة المرور.</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>تعذّر إكمال إجراء الحساب</translation>
    </message>
</context>
<context>
    <name>AccountSignInCard</name>
    <message>
        <source>Remember this account</source>
        <translation>تذكّر هذا الحساب</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that signs in to the Tovra account</extracomment>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Use your Tovra account to connect and sync available locations.</source>
        <translation>استخدم حساب Tovra للاتصال ومزامنة المواقع المتاحة.</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>البريد الإلكتروني أو معرّف المستخدم</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <extracomment>Button that opens the page to create a Tovra account</extracomment>
        <translation>إنشاء حساب</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <extracomment>Button (shown as a link) that opens the password reset page</extracomment>
        <translation>هل نسيت كلمة المرور؟</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <extracomment>Button while the sign-in runs</extracomment>
        <translation>جارٍ تسجيل الدخول...</translation>
    </message>
</context>
<context>
    <name>AccountSummaryCard</name>
    <message>
        <source>Renew</source>
        <extracomment>Button that opens the page to renew the plan</extracomment>
        <translation>تجديد</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <extracomment>Button that signs out of the Tovra account</extracomment>
        <translation>تسجيل الخروج</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>تم تسجيل الدخول</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>معرّف المستخدم: %1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>الخطة: %1</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>الأيام المتبقية: %1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>الحد الأقصى للأجهزة المتزامنة: %1</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <extracomment>Button while the sign-out runs</extracomment>
        <translation>جارٍ تسجيل الخروج...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>Button while the renewal page opens</extracomment>
        <translation>جارٍ الفتح…</translation>
    </message>
</context>
<context>
    <name>AppSection</name>
    <message>
        <source>App</source>
        <translation>التطبيق</translation>
    </message>
    <message>
        <source>Change…</source>
        <extracomment>Button that opens the language picker</extracomment>
        <translation>تغيير…</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>التشغيل عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Start Tovra in the tray when you sign in to the desktop.</source>
        <translation>تشغيل Tovra في منطقة الإشعارات عند تسجيل الدخول إلى سطح المكتب.</translation>
    </message>
    <message>
        <source>Show window at launch</source>
        <translation>إظهار النافذة عند التشغيل</translation>
    </message>
    <message>
        <source>Open this window when Tovra starts; otherwise only the tray icon appears.</source>
        <translation>فتح هذه النافذة عند بدء Tovra؛ وإلا تظهر أيقونته في منطقة الإشعارات فقط.</translation>
    </message>
    <message>
        <source>Same as desktop</source>
        <translation>مثل سطح المكتب</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Light, dark, or following the desktop.</source>
        <translation>فاتح أو داكن أو حسب سطح المكتب.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>تغيير اللغة</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>%1, following the desktop</source>
        <translation>%1، حسب سطح المكتب</translation>
    </message>
    <message>
        <source>Could not update login startup</source>
        <translation>تعذّر تحديث التشغيل عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Show…</source>
        <extracomment>Button that opens the list of keyboard shortcuts</extracomment>
        <translation>عرض…</translation>
    </message>
    <message>
        <source>Show keyboard shortcuts</source>
        <translation>عرض اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Every key that works in this window.</source>
        <translation>كل المفاتيح التي تعمل في هذه النافذة.</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Location %1</source>
        <translation>الموقع %1</translation>
    </message>
    <message>
        <source>Other locations</source>
        <translation>مواقع أخرى</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>مميّز</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>المواقع: %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>latency not measured</source>
        <translation>لم يُقَس زمن الاستجابة</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>مفضّل</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Said of a location in the list: it is the one the VPN is connected to now (not connecting)</extracomment>
        <translation>متصل</translation>
    </message>
    <message>
        <source>not in your plan</source>
        <translation>غير مشمول في خطتك</translation>
    </message>
    <message>
        <source>Your plan does not include this location. Upgrade to use it.</source>
        <translation>لا تشمل خطتك هذا الموقع. قم بالترقية لاستخدامه.</translation>
    </message>
    <message>
        <source>This list may be out of date.</source>
        <translation>قد تكون هذه القائمة قديمة.</translation>
    </message>
    <message>
        <source>Locked: needs the %1 plan. Upgrade to use it.</source>
        <translation>مقفل: يتطلب خطة %1. قم بالترقية لاستخدامه.</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>ConnectionSection</name>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>عنوان URL لواجهة API</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>Button that saves the API URL typed in the field</extracomment>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <extracomment>Button that puts the API URL back to the default address</extracomment>
        <translation>استعادة الافتراضي</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Auto connect choice: connect to nothing when the service starts</extracomment>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>آخر موقع</translation>
    </message>
    <message>
        <source>Fastest location</source>
        <translation>أسرع موقع</translation>
    </message>
    <message>
        <source>Auto connect</source>
        <translation>الاتصال التلقائي</translation>
    </message>
    <message>
        <source>What the Tovra service connects to when it starts.</source>
        <translation>ما تتصل به خدمة Tovra عند بدء تشغيلها.</translation>
    </message>
    <message>
        <source>Save API URL</source>
        <translation>حفظ عنوان URL لواجهة API</translation>
    </message>
    <message>
        <source>Reset API URL to default</source>
        <translation>إعادة عنوان URL لواجهة API إلى الافتراضي</translation>
    </message>
    <message>
        <source>Where the Tovra service reaches the account and location servers. Change it only when support asks you to.</source>
        <translation>العنوان الذي تصل عبره خدمة Tovra إلى خوادم الحسابات والمواقع. لا تغيّره إلا إذا طلب منك الدعم ذلك.</translation>
    </message>
    <message>
        <source>Validation: %1</source>
        <translation>التحقق: %1</translation>
    </message>
    <message>
        <source>Validated by the Tovra service</source>
        <translation>تحققت منه خدمة Tovra</translation>
    </message>
    <message>
        <source>Not validated: the Tovra service saved this address but could not confirm it</source>
        <translation>لم يتم التحقق: حفظت خدمة Tovra هذا العنوان لكنها لم تتمكن من تأكيده</translation>
    </message>
</context>
<context>
    <name>Continents</name>
    <message>
        <source>Africa</source>
        <translation>أفريقيا</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>القارة القطبية الجنوبية</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>آسيا</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>أوروبا</translation>
    </message>
    <message>
        <source>Middle East</source>
        <translation>الشرق الأوسط</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>أمريكا الشمالية</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>أوقيانوسيا</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>أمريكا الجنوبية</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation>خدمة Tovra لا تعمل.</translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation>تم رفض الوصول إلى خدمة Tovra. أضف هذا المستخدم إلى مجموعة tovracli، ثم سجّل الخروج وسجّل الدخول مجددًا.</translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation>تعذّر الاتصال بخدمة Tovra.</translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation>خدمة Tovra قديمة جدًا ولا تدعم أوضاع مفتاح الإيقاف. حدّث Tovra.</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Afghanistan</source>
        <translation>أفغانستان</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>جزر آلاند</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>ألبانيا</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>الجزائر</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>صاموا الأمريكيّة</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>أندورا</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>أنغولا</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>أنغويلا</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>أنتيغوا و باربودا</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>الأرجنتين</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>أرمينيا</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>أروبا</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>أستراليا</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>النّمسا</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>أذربيجان</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>جزر البهاما</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>البحرين</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>بنغلادش</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>بربادوس</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>روسيا البيضاء</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>بلجيكا</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>بيليز</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>بنين</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>برمودا</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>بوتان</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>بوليفيا</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>البوسنة و الهرسك</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>بوتسوانا</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>البرازيل</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>بروناي دار السّلام</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>بلغاريا</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>بوركينا فاصو</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>بوروندي</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>كمبوديا</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>الكاميرون</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>كندا</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>الرأس الأخضر</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>جزر الكيمان</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>جمهورية إفريقيّا الوسطى</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>تشاد</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>تشيلي</translation>
    </message>
    <message>
        <source>China</source>
        <translation>الصّين</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>كولومبيا</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>جزر القمر</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>الكونغو</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>الكونغو، جمهوريّة الكونغو الدّيموقراطيّة</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>جزر كوك</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>كوستاريكا</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>ساحل العاج</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>كرواتيا</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>كوبا</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>قبرص</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>التشيك</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>الدّنمارك</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>جيبوتي</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>دومينيكا</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>جمهوريّة الدّومينيكان</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>الإكوادور</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>مصر</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>السّلفادور</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>غينيا الاستوائيّة</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>إريتريا</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>إستونيا</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>إثيوبيا</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>جزر فولكلاند (مالفيناس)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>جزر الفارو</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>فيجي</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>فنلندا</translation>
    </message>
    <message>
        <source>France</source>
        <translation>فرنسا</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>غيانا الفرنسيّة</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>بولينيسيا الفرنسيّة</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>الغابون</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>غامبيا</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>جورجيا</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>ألمانيا</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>غانا</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>جبل طارق</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>اليونان</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>غرينلاند</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>غرينادا</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>جوادالوبّي</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>جوام</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>غواتيمالا</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>جزيرة جويرزني</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>غينيا</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>غينيا بيساو</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>غويانا</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>هايتي</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>المقعد المقدّس (ولاية مدينة الفاتيكان)</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>هندوراس</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>هونغ كونغ</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>المجر (هنغاريا)</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>آيسلندا</translation>
    </message>
    <message>
        <source>India</source>
        <translation>الهند</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>إندونيسيا</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>إيران، الجمهوريّة الإسلاميّة الإيرانيّة</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>العراق</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>أيرلندا</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>آيزل أف مان</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>إسرائيل</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>إيطاليا</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>جامايكا</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>اليابان</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>جيرسي</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>الأردن</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>كازاخستان</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>كينيا</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>كيريباتي</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>كوريا، جمهورية كوريا الشّعبيّة الدّيموقراطيّة</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>كوريا، جمهوريّة كوريا</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>الكويت</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>قيرغزستان</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>جمهوريّة لاو الدّيموقراطيّة الشّعبيّة</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>لاتفيا</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>لبنان</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>ليسوتو</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>ليبيريا</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>ليبيا</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>ليشتنشتاين</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>لثوانيا</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>لوكسمبورغ</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>مكّاو</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>مقدونيا الشمالية</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>مدغشقر</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>ملاوي</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>ماليزيا</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>جزر المالديف</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>مالي</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>مالطة</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>جزر المارشال</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>مارتينيك</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>موريتانيا</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>موريشيوس</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>مايوت</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>المكسيك</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>ميكرونيزيا، ولايات ميكرونيزيا الموحّدة</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>المالديف</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>موناكو</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>منغوليا</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>المنتنيغرو</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>مونتسيرات</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>المغرب</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>موزمبيق</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>ميانمار</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>ناميبيا</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>ناورو</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>نيبال</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>هولندا</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>نيو قلدونيا</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>نيوزيلاندا</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>نيكاراجوا</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>النّيجر</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>نيجيريا</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>نيوي</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>جزيرة نورفولك</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>جزر ماريانا الشّماليّة</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>النّرويج</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>عمان</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>باكستان</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>بالاو</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>دولة فلسطين</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>بنما</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>بابوا غينيا الجديدة</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>الباراغواي</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>البيرو</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>الفلبّين</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>بولندا</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>البرتغال</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>بورتوريكو</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>قطر</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>ريونيون</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>رومانيا</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>الاتّحاد الرّوسي</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>رواندا</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>ساينت هيلينا، تريستان دا كونا</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>سانت كيتس و نيفس</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>سانت لوسيا</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>سانت بيير و ميكيلون</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>سانت فنسنت و جزر الغرينادين</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>صاموا</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>سان مارينو</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>ساو تومي و برنسبي</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>السّعوديّة</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>السّنغال</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>صربية</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>السّيشل</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>سيراليون</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>سنغافورة</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>سلوفاكيا</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>سلوفينيا</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>جزر سولومن</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>الصّومال</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>جنوب إفريقيا</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>جنوب السّودان</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>إسبانيا</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>سريلانكا</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>السّودان</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>سورينام</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>إسواتيني</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>السّويد</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>سويسرا</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>الجمهوريّة العربيّة السّوريّة</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>تايوان</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>طاجيكستان</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>تنزانيا</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>تايلاند</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>تيمور-ليستي</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>توغو</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>جزر توكيلو</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>تونغا</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>ترينيداد و توباغو</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>تونس</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>تركيا</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>تركمانستان</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>جزر التّرك و الكايكوس</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>توفالو</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>أوغندا</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>أوكرانيا</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>الإمارات العربيّة المتحدّة</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>المملكة المتّحدة</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>الولايات المتّحدة</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>الأوروغواي</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>أوزبكستان</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>فانواتو</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>فنزويلّا</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>الفيتنام</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>فيرجن، جزر فيرجن البريطانيّة</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>فيرجن، جزر فيرجن الأميركيّة</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>واليس و فوتونا</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>الصّحراء الغربيّة</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>اليمن</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>زامبيا</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>زمبابوي</translation>
    </message>
</context>
<context>
    <name>DesktopAnswer</name>
    <message>
        <source>tovra: no location matches “%1”</source>
        <translation>tovra: لا يوجد موقع يطابق «%1»</translation>
    </message>
    <message>
        <source>tovra: Tovra is busy with another connection or sign-in; try again when it has finished</source>
        <translation>tovra: Tovra مشغول باتصال آخر أو بتسجيل الدخول؛ أعد المحاولة عند انتهائه</translation>
    </message>
    <message>
        <source>tovra: sign in to Tovra before connecting</source>
        <translation>tovra: سجّل الدخول إلى Tovra قبل الاتصال</translation>
    </message>
    <message>
        <source>tovra: your plan does not include “%1”</source>
        <translation>tovra: خطتك لا تتضمن «%1»</translation>
    </message>
    <message>
        <source>tovra: the request failed</source>
        <translation>tovra: فشل الطلب</translation>
    </message>
    <message>
        <source>tovra: %1</source>
        <translation>tovra: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandLine</name>
    <message>
        <source>tovra: give only one of %1</source>
        <translation>tovra: حدّد خيارًا واحدًا فقط من: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandSender</name>
    <message>
        <source>could not start Tovra</source>
        <translation>تعذّر تشغيل Tovra</translation>
    </message>
    <message>
        <source>Tovra did not start</source>
        <translation>لم يبدأ Tovra</translation>
    </message>
    <message>
        <source>the running Tovra is an older version: it came to the front but did not act on the request; quit it and try again</source>
        <translation>Tovra قيد التشغيل إصدار أقدم: ظهر في المقدمة لكنه لم ينفّذ الطلب؛ أغلقه وأعد المحاولة</translation>
    </message>
    <message>
        <source>the running Tovra did not answer</source>
        <translation>لم يستجب Tovra قيد التشغيل</translation>
    </message>
</context>
<context>
    <name>DiagnosticsSection</name>
    <message>
        <source>Configuration</source>
        <extracomment>Label of a folder path: where the service keeps its configuration</extracomment>
        <translation>التكوين</translation>
    </message>
    <message>
        <source>Runtime</source>
        <extracomment>Label of a folder path: where the service keeps its running files (socket, PID file); not a duration</extracomment>
        <translation>مجلد وقت التشغيل</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Label of a folder path: the service&apos;s log folder</extracomment>
        <translation>السجلات</translation>
    </message>
    <message>
        <source>State file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>ملف الحالة</translation>
    </message>
    <message>
        <source>Credentials key</source>
        <extracomment>Label of a file path: the key file for the stored account credentials</extracomment>
        <translation>مفتاح بيانات الاعتماد</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Label of a file path: the service&apos;s history file</extracomment>
        <translation>السجل التاريخي</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Label of a folder path: the service&apos;s profiles folder</extracomment>
        <translation>الملفات الشخصية</translation>
    </message>
    <message>
        <source>Control socket</source>
        <extracomment>Label of a file path: the socket this app talks to the service through</extracomment>
        <translation>مقبس التحكم</translation>
    </message>
    <message>
        <source>PID file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>ملف PID</translation>
    </message>
    <message>
        <source>Control address</source>
        <extracomment>Label of an address the service listens on for control requests</extracomment>
        <translation>عنوان التحكم</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>التشخيص</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Button that resets the kill switch, local proxy and tunnel</extracomment>
        <translation>إصلاح</translation>
    </message>
    <message>
        <source>Open logs</source>
        <extracomment>Button that opens the log folder</extracomment>
        <translation>فتح السجلات</translation>
    </message>
    <message>
        <source>Repair connection</source>
        <translation>إصلاح الاتصال</translation>
    </message>
    <message>
        <source>Resets the kill switch, the local proxy and the tunnel when traffic is stuck.</source>
        <translation>يعيد ضبط مفتاح الإيقاف والوكيل المحلي والنفق عند توقف حركة المرور.</translation>
    </message>
    <message>
        <source>The Tovra service&apos;s log folder, for support.</source>
        <translation>مجلد سجلات خدمة Tovra، لأغراض الدعم.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>Button that copies the path next to it</extracomment>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Copy %1 path</source>
        <extracomment>%1 is one of the path labels above, such as &quot;Runtime&quot;</extracomment>
        <translation>نسخ مسار %1</translation>
    </message>
    <message>
        <source>Service paths</source>
        <translation>مسارات الخدمة</translation>
    </message>
    <message>
        <source>Where the Tovra service keeps its files.</source>
        <translation>المواضع التي تحفظ فيها خدمة Tovra ملفاتها.</translation>
    </message>
    <message>
        <source>Tovra service version</source>
        <translation>إصدار خدمة Tovra</translation>
    </message>
    <message>
        <source>Control protocol</source>
        <translation>بروتوكول التحكم</translation>
    </message>
    <message>
        <source>This app speaks version 1.</source>
        <translation>يستخدم هذا التطبيق الإصدار 1.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>غير معيّن</translation>
    </message>
    <message>
        <source>%1, not compatible</source>
        <translation>%1، غير متوافق</translation>
    </message>
</context>
<context>
    <name>FieldClearButton</name>
    <message>
        <source>Clear search</source>
        <translation>مسح البحث</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>مسح النص</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation>التشغيل عند تسجيل الدخول غير مدعوم على هذا النظام.</translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation>تعذّر العثور على ملف Tovra التنفيذي للتشغيل عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>تعذّر تجهيز مجلد التشغيل عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation>تعذّر تحديث تشغيل Tovra عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation>تعذّر تأمين تشغيل Tovra عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation>تعذّرت إزالة Tovra من التشغيل عند تسجيل الدخول.</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>These keys work anywhere in the Tovra window. Tab moves between controls.</source>
        <translation>تعمل هذه المفاتيح في أي مكان من نافذة Tovra. ينتقل Tab بين عناصر التحكم.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>المفاتيح</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>الإجراء</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the keyboard shortcuts list</extracomment>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>إقفال تام</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>الإقفال التام غير متاح</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>State of the kill switch: turned on</extracomment>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>State of the kill switch: turned off</extracomment>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>يتطلب مفتاح الإيقاف وضع VPN</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation>لا يعمل مفتاح الإيقاف في وضع Tovra Proxy. انتقل إلى الوضع التلقائي (موصى به) أو TovraVPN أو WireGuard لتفعيله.</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <extracomment>Button that switches to the Auto mode and turns the kill switch on</extracomment>
        <translation>التبديل إلى التلقائي والتفعيل</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>التبديل إلى الوضع التلقائي وتفعيل مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <extracomment>Button that opens the Mode page to pick a VPN mode</extracomment>
        <translation>اختيار الوضع…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>اختر وضعًا لمفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation>يتطلب Tovra Proxy إيقاف مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>يحظر مفتاح الإيقاف Tovra Proxy. أوقف مفتاح الإيقاف من الإعدادات أولًا، ثم بدّل الوضع.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>Button that opens the Settings page</extracomment>
        <translation>فتح الإعدادات</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>فتح الإعدادات لإيقاف مفتاح الإيقاف</translation>
    </message>
</context>
<context>
    <name>KillSwitchSection</name>
    <message>
        <source>Kill Switch</source>
        <translation>مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Block traffic outside the tunnel</source>
        <translation>حظر حركة المرور خارج النفق</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel while Tovra is connected or connecting.</source>
        <translation>يحظر حركة المرور خارج النفق ما دام Tovra متصلًا أو قيد الاتصال.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>دائمًا</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel whenever Kill Switch is on, even while disconnected.</source>
        <translation>يحظر حركة المرور خارج النفق طالما مفتاح الإيقاف مفعّل، حتى عند قطع الاتصال.</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>إقفال تام</translation>
    </message>
    <message>
        <source>Set by the Tovra service: traffic outside the tunnel stays blocked and Kill Switch cannot be turned off here.</source>
        <translation>تم ضبطه من خدمة Tovra: تبقى حركة المرور خارج النفق محظورة ولا يمكن إيقاف مفتاح الإيقاف من هنا.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>الوضع</translation>
    </message>
    <message>
        <source>When Kill Switch blocks traffic.</source>
        <translation>متى يحظر مفتاح الإيقاف حركة المرور.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>الشبكة المحلية</translation>
    </message>
    <message>
        <source>Whether printers, shares and other devices nearby stay reachable while traffic is blocked.</source>
        <translation>ما إذا كانت الطابعات والمجلدات المشتركة والأجهزة القريبة الأخرى تبقى قابلة للوصول أثناء حظر حركة المرور.</translation>
    </message>
    <message>
        <source>Kill Switch mode: %1</source>
        <translation>وضع مفتاح الإيقاف: %1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>الآن: %1</translation>
    </message>
    <message>
        <source>%1. The Tovra service holds Kill Switch on; it cannot be turned off here.</source>
        <translation>%1. تُبقي خدمة Tovra مفتاح الإيقاف مفعّلًا؛ ولا يمكن إيقافه من هنا.</translation>
    </message>
    <message>
        <source>Tovra Proxy is in use: Kill Switch needs a VPN mode.</source>
        <translation>Tovra Proxy قيد الاستخدام: يتطلب مفتاح الإيقاف وضع VPN.</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>قابلة للوصول</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>محظورة</translation>
    </message>
</context>
<context>
    <name>LanguagePickerDialog</name>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>استخدام لغة النظام</translation>
    </message>
    <message>
        <source>Use system language (%1)</source>
        <translation>استخدام لغة النظام (%1)</translation>
    </message>
    <message>
        <source>Follow the desktop&apos;s language</source>
        <translation>اتباع لغة سطح المكتب</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>اختر لغة</translation>
    </message>
    <message>
        <source>Tovra restarts to show the new language.</source>
        <translation>يُعاد تشغيل Tovra لعرض اللغة الجديدة.</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>البحث في اللغات</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>اللغات</translation>
    </message>
    <message>
        <source>Use language</source>
        <extracomment>Button that switches to the chosen language</extracomment>
        <translation>استخدام اللغة</translation>
    </message>
</context>
<context>
    <name>LocationItemDelegate</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
</context>
<context>
    <name>LocationsEmptyState</name>
    <message>
        <source>The Tovra service is not available.
Locations appear here as soon as it responds.</source>
        <translation>خدمة Tovra غير متاحة.
ستظهر المواقع هنا فور استجابتها.</translation>
    </message>
    <message>
        <source>Loading locations...</source>
        <translation>جارٍ تحميل المواقع...</translation>
    </message>
    <message>
        <source>The service has no locations to offer right now.
Try Refresh in a moment.</source>
        <translation>لا تتوفر لدى الخدمة مواقع في الوقت الحالي.
جرّب التحديث بعد قليل.</translation>
    </message>
    <message>
        <source>No favourites yet.
Star a location (or select it and press Space) to keep it here.</source>
        <translation>لا توجد مواقع مفضلة بعد.
ضع نجمة على موقع (أو حدّده واضغط مفتاح المسافة) للاحتفاظ به هنا.</translation>
    </message>
    <message>
        <source>No locations in this tab.</source>
        <translation>لا توجد مواقع في علامة التبويب هذه.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.
Try a country, a city or a code such as “de”.</source>
        <translation>لا توجد نتائج مطابقة لـ «%1».
جرّب اسم دولة أو مدينة أو رمزًا مثل «de».</translation>
    </message>
    <message>
        <source>Could not load the locations: %1
Press Refresh to try again.</source>
        <extracomment>%1 is the service&apos;s own error text</extracomment>
        <translation>تعذّر تحميل المواقع: %1
اضغط «تحديث» للمحاولة مرة أخرى.</translation>
    </message>
</context>
<context>
    <name>LocationsFavoriteButton</name>
    <message>
        <source>Remove from favourites</source>
        <translation>إزالة من المفضلة</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>إضافة إلى المفضلة</translation>
    </message>
    <message>
        <source>Select a location in the list to star it</source>
        <translation>حدّد موقعًا في القائمة لإضافته إلى المفضلة</translation>
    </message>
    <message>
        <source>Remove %1 from favourites</source>
        <translation>إزالة %1 من المفضلة</translation>
    </message>
    <message>
        <source>Add %1 to favourites</source>
        <translation>إضافة %1 إلى المفضلة</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation>كل المواقع</translation>
    </message>
    <message>
        <source>Double-click a location to connect to it, or a country or city to connect to its fastest location.</source>
        <translation>انقر نقرًا مزدوجًا على موقع للاتصال به، أو على دولة أو مدينة للاتصال بأسرع موقع فيها.</translation>
    </message>
    <message>
        <source>Search countries, cities, locations or P2P</source>
        <translation>ابحث عن دول أو مدن أو مواقع أو P2P</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>البحث في المواقع</translation>
    </message>
    <message>
        <source>None of the locations in %1 is included in your plan.</source>
        <translation>لا تشمل خطتك أيًا من المواقع في %1.</translation>
    </message>
    <message>
        <source>%1 is not included in your plan. Upgrade to use it.</source>
        <translation>%1 غير مشمول في خطتك. قم بالترقية لاستخدامه.</translation>
    </message>
    <message>
        <source>Location actions</source>
        <translation>إجراءات الموقع</translation>
    </message>
    <message>
        <source>Connect to the fastest location</source>
        <translation>الاتصال بأسرع موقع</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>طيّ</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>توسيع</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>إزالة من المفضلة</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>إضافة إلى المفضلة</translation>
    </message>
</context>
<context>
    <name>LocationsStatusLine</name>
    <message>
        <source>Matches in every tab: %1</source>
        <translation>النتائج في كل علامات التبويب: %1</translation>
    </message>
    <message>
        <source>Locations: %1</source>
        <translation>المواقع: %1</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>متصل بـ %1</translation>
    </message>
    <message>
        <source>Measuring latency...</source>
        <translation>جارٍ قياس زمن الاستجابة...</translation>
    </message>
    <message>
        <source>This list may be out of date; Refresh fetches a new one.</source>
        <translation>قد تكون هذه القائمة قديمة؛ يجلب التحديث قائمة جديدة.</translation>
    </message>
    <message>
        <source>Grouping by region until the service&apos;s groups arrive.</source>
        <translation>التجميع حسب المنطقة إلى أن تصل مجموعات الخدمة.</translation>
    </message>
</context>
<context>
    <name>LocationsToolbar</name>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>مجاني</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>مميّز</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>المفضلة</translation>
    </message>
    <message>
        <source>Location tabs</source>
        <translation>علامات تبويب المواقع</translation>
    </message>
    <message>
        <source>Sort locations</source>
        <translation>ترتيب المواقع</translation>
    </message>
    <message>
        <source>Service order</source>
        <translation>ترتيب الخدمة</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>زمن الاستجابة</translation>
    </message>
    <message>
        <source>Order of the locations within each group</source>
        <translation>ترتيب المواقع داخل كل مجموعة</translation>
    </message>
    <message>
        <source>Fetch the list of locations again and measure their latency</source>
        <translation>جلب قائمة المواقع مجددًا وقياس زمن استجابتها</translation>
    </message>
    <message>
        <source>Refresh (%1s)</source>
        <extracomment>Button, disabled for %1 more seconds before the list can be fetched again</extracomment>
        <translation>تحديث (%1 ث)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Refresh locations, possible again in %1 s</source>
        <translation>تحديث المواقع، متاح مجددًا بعد %1 ث</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>تحديث المواقع</translation>
    </message>
</context>
<context>
    <name>LocationsTreeView</name>
    <message>
        <source>Locations</source>
        <translation>المواقع</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tovra</source>
        <translation>Tovra</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <extracomment>Shown when a request to the Tovra service failed without a reason. Word it as a user would understand it: &quot;Could not complete the action&quot;</extracomment>
        <translation>تعذّر إكمال الإجراء</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <extracomment>Shown when changing a setting failed without a reason. Word it as a user would understand it: &quot;Could not change the settings&quot;</extracomment>
        <translation>تعذّر تغيير الإعدادات</translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <extracomment>Shown when changing the mode failed without a reason. Word it as a user would understand it: &quot;Could not change the mode&quot;</extracomment>
        <translation>تعذّر تغيير الوضع</translation>
    </message>
</context>
<context>
    <name>ModeChoiceCard</name>
    <message>
        <source>Tovra picks the protocol that works best here.</source>
        <translation>يختار Tovra البروتوكول الأنسب هنا.</translation>
    </message>
    <message>
        <source>A fast, modern tunnel for all your traffic.</source>
        <translation>نفق سريع وحديث لكل حركة المرور.</translation>
    </message>
    <message>
        <source>All traffic goes through the TovraVPN tunnel.</source>
        <translation>تمر كل حركة المرور عبر نفق TovraVPN.</translation>
    </message>
    <message>
        <source>The tunnel by default; chosen regions and sites go direct.</source>
        <translation>النفق افتراضيًا؛ والمناطق والمواقع الإلكترونية المختارة تمر مباشرة.</translation>
    </message>
    <message>
        <source>No tunnel: apps that use the local proxy reach the internet through Tovra.</source>
        <translation>بلا نفق: التطبيقات التي تستخدم الوكيل المحلي تصل إلى الإنترنت عبر Tovra.</translation>
    </message>
    <message>
        <source>The local proxy, with chosen regions and sites going direct.</source>
        <translation>الوكيل المحلي، مع مرور المناطق والمواقع الإلكترونية المختارة مباشرة.</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>جارٍ التطبيق…</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode: pick Auto, WireGuard or TovraVPN to turn it on.</source>
        <translation>يتطلب مفتاح الإيقاف وضع VPN: اختر التلقائي أو WireGuard أو TovraVPN لتفعيله.</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>اختر وضعًا</translation>
    </message>
    <message>
        <source>The current mode shows once the Tovra service answers.</source>
        <translation>يظهر الوضع الحالي بمجرد استجابة خدمة Tovra.</translation>
    </message>
    <message>
        <source>Current mode: %1. This version of Tovra does not know it; choose one of the modes above to replace it.</source>
        <translation>الوضع الحالي: %1. لا يعرفه هذا الإصدار من Tovra؛ اختر أحد الأوضاع أعلاه لاستبداله.</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Auto</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>TovraVPN Split</source>
        <translation>TovraVPN مقسَّم</translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation>TovraVPN شامل</translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation>Tovra Proxy مقسَّم</translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation>Tovra Proxy شامل</translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation>وضع التوجيه</translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation>اختر كيفية توجيه حركة المرور والمواقع الإلكترونية التي تتجاوز النفق.</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation>المواقع</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>الوضع</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>الحساب</translation>
    </message>
</context>
<context>
    <name>NetworkOptionsCard</name>
    <message>
        <source>Local network</source>
        <translation>الشبكة المحلية</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>وكيل النظام</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network option: devices nearby are reached outside the tunnel</extracomment>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Printers, shares and other devices on your network stay reachable</source>
        <translation>تبقى الطابعات والمجلدات المشتركة والأجهزة الأخرى على شبكتك قابلة للوصول</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network option: local traffic goes through the tunnel like the rest</extracomment>
        <translation>محمي</translation>
    </message>
    <message>
        <source>Local network traffic is protected like the rest</source>
        <translation>حركة مرور الشبكة المحلية محمية مثل باقي حركة المرور</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy option: the desktop proxy settings are left alone</extracomment>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings are left alone</source>
        <translation>تبقى إعدادات الوكيل في سطح المكتب دون تغيير</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy option: the desktop proxy settings point at Tovra</extracomment>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra</source>
        <translation>تشير إعدادات الوكيل في سطح المكتب إلى Tovra</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy option, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>قفل</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra and are kept so</source>
        <translation>تشير إعدادات الوكيل في سطح المكتب إلى Tovra وتبقى كذلك</translation>
    </message>
    <message>
        <source>Whether devices on your local network stay reachable while Tovra routes your traffic.</source>
        <translation>ما إذا كانت الأجهزة على شبكتك المحلية تبقى قابلة للوصول أثناء توجيه Tovra لحركة المرور.</translation>
    </message>
    <message>
        <source>Point the desktop&apos;s proxy settings at Tovra, or also keep other programs from changing them.</source>
        <translation>توجيه إعدادات الوكيل في سطح المكتب إلى Tovra، أو منع البرامج الأخرى أيضًا من تغييرها.</translation>
    </message>
</context>
<context>
    <name>NetworkSection</name>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>SOCKS5 listener</source>
        <translation>مستمع SOCKS5</translation>
    </message>
    <message>
        <source>HTTP listener</source>
        <translation>مستمع HTTP</translation>
    </message>
    <message>
        <source>Apply listeners</source>
        <extracomment>Button that applies the SOCKS5 and HTTP listen addresses typed above</extracomment>
        <translation>تطبيق المستمعين</translation>
    </message>
    <message>
        <source>Local DNS servers</source>
        <translation>خوادم DNS المحلية</translation>
    </message>
    <message>
        <source>For example 192.168.1.1, ::1</source>
        <translation>مثال: 192.168.1.1, ::1</translation>
    </message>
    <message>
        <source>Save servers</source>
        <extracomment>Button that saves the local DNS servers typed in the field</extracomment>
        <translation>حفظ الخوادم</translation>
    </message>
    <message>
        <source>Clear servers</source>
        <extracomment>Button that empties the list of local DNS servers</extracomment>
        <translation>مسح الخوادم</translation>
    </message>
    <message>
        <source>Reset split DNS</source>
        <extracomment>Button that puts the split DNS settings back to their defaults</extracomment>
        <translation>إعادة ضبط DNS المقسَّم</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy choice: the desktop proxy settings are left alone</extracomment>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy choice: the desktop proxy settings point at Tovra</extracomment>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>On and locked</source>
        <translation>تشغيل ومقفل</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>وكيل النظام</translation>
    </message>
    <message>
        <source>Points the desktop&apos;s proxy settings at Tovra; locked keeps other programs from changing them.</source>
        <translation>يوجّه إعدادات الوكيل في سطح المكتب إلى Tovra؛ والقفل يمنع البرامج الأخرى من تغييرها.</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network choice: devices nearby are reached outside the tunnel</extracomment>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network choice: local traffic goes through the tunnel like the rest</extracomment>
        <translation>محمي</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>الشبكة المحلية</translation>
    </message>
    <message>
        <source>Direct reaches devices nearby outside the tunnel; protected sends everything through it.</source>
        <translation>«مباشر» يصل إلى الأجهزة القريبة خارج النفق؛ و«محمي» يرسل كل شيء عبره.</translation>
    </message>
    <message>
        <source>SOCKS5</source>
        <translation>SOCKS5</translation>
    </message>
    <message>
        <source>HTTP</source>
        <translation>HTTP</translation>
    </message>
    <message>
        <source>Local proxy listeners</source>
        <translation>مستمعو الوكيل المحلي</translation>
    </message>
    <message>
        <source>Addresses where the daemon accepts proxy connections, as host:port. Leave a field empty to close that listener.</source>
        <translation>العناوين التي تقبل عليها الخدمة اتصالات الوكيل، بصيغة host:port. اترك الحقل فارغًا لإغلاق ذلك المستمع.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>DNS محلي</translation>
    </message>
    <message>
        <source>Remote DNS</source>
        <translation>DNS بعيد</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>DNS المقسَّم</translation>
    </message>
    <message>
        <source>Which resolver answers for names that stay outside the tunnel.</source>
        <translation>المحلِّل الذي يجيب عن الأسماء التي تبقى خارج النفق.</translation>
    </message>
    <message>
        <source>IP addresses of the resolvers for local names, separated by commas.</source>
        <translation>عناوين IP لمحلِّلات الأسماء المحلية، مفصولة بفواصل.</translation>
    </message>
    <message>
        <source>In effect: %1</source>
        <translation>المطبَّق: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>In effect: %1, servers %2</source>
        <translation>المطبَّق: %1، الخوادم %2</translation>
    </message>
    <message>
        <source>(from %1)</source>
        <translation>(من %1)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>(from the system settings)</source>
        <translation>(من إعدادات النظام)</translation>
    </message>
    <message>
        <source>(from your list)</source>
        <translation>(من قائمتك)</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation>تجاهل الإشعار</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>إشعار: %1</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::ShellText</name>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>لم تتغير قواعد التقسيم المخصصة</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::TrayMenuText</name>
    <message>
        <source>Connect</source>
        <translation>اتصال</translation>
    </message>
</context>
<context>
    <name>QuickEntryField</name>
    <message>
        <source>Search for a country, city or location</source>
        <translation>ابحث عن دولة أو مدينة أو موقع</translation>
    </message>
    <message>
        <source>Quick connect search</source>
        <translation>بحث الاتصال السريع</translation>
    </message>
</context>
<context>
    <name>QuickEntryModel</name>
    <message>
        <source>Recent searches</source>
        <translation>عمليات البحث الأخيرة</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>المواقع الأخيرة</translation>
    </message>
    <message>
        <source>Type a country, city or location name</source>
        <translation>اكتب اسم دولة أو مدينة أو موقع</translation>
    </message>
    <message>
        <source>No locations match “%1”</source>
        <translation>لا توجد مواقع مطابقة لـ «%1»</translation>
    </message>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
</context>
<context>
    <name>QuickEntryPopup</name>
    <message>
        <source>Search results</source>
        <translation>نتائج البحث</translation>
    </message>
</context>
<context>
    <name>SettingsCard</name>
    <message>
        <source>Unknown</source>
        <translation>غير معروف</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>التفضيلات</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>جارٍ تطبيق الإعدادات...</translation>
    </message>
    <message>
        <source>Changes take effect once the Tovra service confirms them.</source>
        <translation>تسري التغييرات بعد أن تؤكدها خدمة Tovra.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Settings can be changed again once the Tovra service answers.</source>
        <translation>يمكن تغيير الإعدادات مجددًا بمجرد استجابة خدمة Tovra.</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service...</source>
        <translation>في انتظار خدمة Tovra...</translation>
    </message>
</context>
<context>
    <name>SettingsRow</name>
    <message>
        <source>%1: %2</source>
        <comment>row title: help text</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsValidator</name>
    <message>
        <source>Add a port: host:port, for example 127.0.0.1:1080.</source>
        <translation>أضف منفذًا: host:port، مثل 127.0.0.1:1080.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>«%1» ليس عنوان IPv6.</translation>
    </message>
    <message>
        <source>Write an IPv6 address in brackets: [::1]:1080.</source>
        <translation>اكتب عنوان IPv6 بين قوسين معقوفين: [::1]:1080.</translation>
    </message>
    <message>
        <source>Add a host before the port: host:port.</source>
        <translation>أضف اسم المضيف قبل المنفذ: host:port.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name or IP address.</source>
        <translation>«%1» ليس اسم مضيف ولا عنوان IP.</translation>
    </message>
    <message>
        <source>Add a port after the colon: host:port.</source>
        <translation>أضف منفذًا بعد النقطتين: host:port.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>يجب أن يكون المنفذ رقمًا من 1 إلى 65535.</translation>
    </message>
    <message>
        <source>Enter an API URL, or reset it to the default.</source>
        <translation>أدخل عنوان URL لواجهة API، أو أعِده إلى الافتراضي.</translation>
    </message>
    <message>
        <source>The API URL must start with http:// or https://.</source>
        <translation>يجب أن يبدأ عنوان URL لواجهة API بـ http:// أو https://.</translation>
    </message>
    <message>
        <source>The API URL needs a host, for example https://api.example.com.</source>
        <translation>يحتاج عنوان URL لواجهة API إلى اسم مضيف، مثل https://api.example.com.</translation>
    </message>
    <message>
        <source>Enter at least one DNS server, or clear the list.</source>
        <translation>أدخل خادم DNS واحدًا على الأقل، أو امسح القائمة.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address.</source>
        <translation>«%1» ليس عنوان IP.</translation>
    </message>
</context>
<context>
    <name>SplitOptionsCard</name>
    <message>
        <source>Choose TovraVPN Split or Tovra Proxy Split to send some traffic direct: by region, by the GFWList or by your own rules.</source>
        <translation>اختر TovraVPN مقسَّم أو Tovra Proxy مقسَّم لإرسال جزء من حركة المرور مباشرة: حسب المنطقة أو حسب GFWList أو حسب قواعدك الخاصة.</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>المسار الافتراضي</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Default route choice: traffic goes straight to the internet, outside the tunnel or proxy</extracomment>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Everything not chosen below goes direct</source>
        <translation>كل ما لم يُختر أدناه يمر مباشرة</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>Button that opens the region picker</extracomment>
        <translation>اختيار…</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>اختيار المناطق</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>المناطق</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>قواعد التقسيم المخصصة</translation>
    </message>
    <message>
        <source>Edit rules…</source>
        <extracomment>Button that opens the custom split rules editor</extracomment>
        <translation>تحرير القواعد…</translation>
    </message>
    <message>
        <source>Edit custom split rules</source>
        <translation>تحرير قواعد التقسيم المخصصة</translation>
    </message>
    <message>
        <source>Split routing</source>
        <translation>التوجيه المقسَّم</translation>
    </message>
    <message>
        <source>TovraVPN Split options</source>
        <translation>خيارات TovraVPN مقسَّم</translation>
    </message>
    <message>
        <source>Tovra Proxy Split options</source>
        <translation>خيارات Tovra Proxy مقسَّم</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>النفق</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>الوكيل</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the tunnel</source>
        <translation>كل ما لم يُختر أدناه يمر عبر النفق</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the proxy</source>
        <translation>كل ما لم يُختر أدناه يمر عبر الوكيل</translation>
    </message>
    <message>
        <source>Traffic goes direct unless a region, the GFWList or a rule says otherwise.</source>
        <translation>تمر حركة المرور مباشرة ما لم تقضِ منطقة أو GFWList أو قاعدة بغير ذلك.</translation>
    </message>
    <message>
        <source>Traffic goes through the tunnel unless a region or a rule sends it direct.</source>
        <translation>تمر حركة المرور عبر النفق ما لم ترسلها منطقة أو قاعدة مباشرة.</translation>
    </message>
    <message>
        <source>Traffic goes through the proxy unless a region or a rule sends it direct.</source>
        <translation>تمر حركة المرور عبر الوكيل ما لم ترسلها منطقة أو قاعدة مباشرة.</translation>
    </message>
    <message>
        <source>No regions chosen.</source>
        <translation>لم يتم اختيار مناطق.</translation>
    </message>
    <message>
        <source>Go direct: %1</source>
        <translation>مباشرة: %1</translation>
    </message>
    <message>
        <source>Go through the tunnel: %1</source>
        <translation>عبر النفق: %1</translation>
    </message>
    <message>
        <source>Go through the proxy: %1</source>
        <translation>عبر الوكيل: %1</translation>
    </message>
    <message>
        <source>GFWList → Tunnel</source>
        <translation>GFWList ← النفق</translation>
    </message>
    <message>
        <source>GFWList → Proxy</source>
        <translation>GFWList ← الوكيل</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the tunnel.</source>
        <translation>المواقع الإلكترونية المدرجة في GFWList تمر دائمًا عبر النفق.</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the proxy.</source>
        <translation>المواقع الإلكترونية المدرجة في GFWList تمر دائمًا عبر الوكيل.</translation>
    </message>
    <message>
        <source>Your own domain and address lists.</source>
        <translation>قوائم النطاقات والعناوين الخاصة بك.</translation>
    </message>
    <message>
        <source>Your own domain and address lists. Rules held: %1.</source>
        <translation>قوائم النطاقات والعناوين الخاصة بك. القواعد المحفوظة: %1.</translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation>تعذّر تسجيل الدخول</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>تعذّر تسجيل الخروج</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>تعذّر تحميل الحساب</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>تعذّر فتح صفحة التجديد</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>جارٍ تحديث المواقع...</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>تحديث المواقع قيد التنفيذ بالفعل</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>تعذّر تحديث المفضلة</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>تعذّر تحديث المواقع</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>تعذّر تحديث مجموعات المواقع</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>تم تحديث المواقع</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>تعذّر الاتصال بهذا الموقع</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>تعذّر الاتصال</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>تعذّر قطع الاتصال</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>تعذّر تحديث اللغة</translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation>جارٍ إعادة تشغيل Tovra لتطبيق لغة الواجهة.</translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation>تعذّرت إعادة تشغيل Tovra. يُرجى إعادة تشغيل التطبيق يدويًا.</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>تعذّر تبديل الوضع</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>تعذّر تحديث إعداد الشبكة المحلية</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>تعذّر تحديث وكيل النظام</translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>يُرجى الانتظار حتى تنتهي العملية الحالية</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>اختر وضع VPN لتفعيل مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>تعذّر تحديث مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>تم تحديث قواعد التقسيم المخصصة، لكن تعذّر إعادة تحميلها</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>تعذّر تحميل قواعد التقسيم</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>تعذّر استيراد قواعد التقسيم</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>تم تحديث قواعد التقسيم المخصصة (لا قواعد)</numerusform>
            <numerusform>تم تحديث قواعد التقسيم المخصصة (قاعدة واحدة)</numerusform>
            <numerusform>تم تحديث قواعد التقسيم المخصصة (قاعدتان)</numerusform>
            <numerusform>تم تحديث قواعد التقسيم المخصصة (%n قواعد)</numerusform>
            <numerusform>تم تحديث قواعد التقسيم المخصصة (%n قاعدة)</numerusform>
            <numerusform>تم تحديث قواعد التقسيم المخصصة (%n قاعدة)</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>تعذّر تحميل مسارات الإعدادات</translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation>تعذّر تحديث عنوان URL لواجهة API</translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation>أُعيد عنوان URL لواجهة API إلى الافتراضي</translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation>تم التحقق من عنوان URL لواجهة API وحفظه</translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation>تم حفظ عنوان URL لواجهة API دون التحقق منه</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>تعذّر تحديث الاتصال التلقائي</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>تعذّر تحديث عنوان استماع الوكيل</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>تم حفظ عنوان استماع الوكيل لإعادة الاتصال</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>تم تحديث عنوان استماع الوكيل</translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation>تعذّر تحديث DNS المقسَّم</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>تم تحديث DNS المقسَّم</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>فشل الإصلاح</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>اكتمل الإصلاح</translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation>جارٍ التحقق من توافق خدمة Tovra...</translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation>واجهة Tovra وخدمتها غير متوافقتين. حدّث Tovra قبل المتابعة.</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>تعذّر تحميل الإصدار</translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation>إصدار الواجهة غير متاح</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>تعذّر التحقق من وجود تحديثات</translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation>Tovra محدَّث</translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation>جارٍ التحقق من تحديث إلزامي لـ Tovra قبل الاتصال.</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>جارٍ إنهاء آخر عملية تحقق من التحديثات قبل بدء التنزيل...</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>معلومات التحديث غير متاحة. تحقّق من وجود تحديثات مجددًا.</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation>جارٍ الإلغاء...</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>تعذّر تأكيد بدء التنزيل. جارٍ التحقق من حالته...</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>تعذّر بدء تنزيل التحديث</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>تعذّر تأكيد الإلغاء. جارٍ إعادة المحاولة...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>تعذّرت قراءة تقدم التنزيل. جارٍ إعادة المحاولة...</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>اكتمل التنزيل قبل أن يتسنى إلغاؤه. لم يُفتح المثبّت.</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>تم تنزيل التحديث، لكن تعذّر فتح المثبّت.</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>يعود التنزيل إلى إصدار تحديث مختلف. تحقّق من وجود تحديثات مجددًا.</translation>
    </message>
    <message>
        <source>Could not load kill switch</source>
        <translation>تعذّر تحميل مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Could not load API URL</source>
        <translation>تعذّر تحميل عنوان URL لواجهة API</translation>
    </message>
    <message>
        <source>Could not load split DNS</source>
        <translation>تعذّر تحميل DNS المقسَّم</translation>
    </message>
    <message>
        <source>Could not reach the Tovra service</source>
        <translation>تعذّر الوصول إلى خدمة Tovra</translation>
    </message>
    <message>
        <source>Could not load languages</source>
        <translation>تعذّر تحميل اللغات</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>جارٍ التحقق من وجود تحديثات...</translation>
    </message>
    <message>
        <source>Tovra %1 is available</source>
        <translation>يتوفر Tovra %1</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting.</source>
        <translation>يجب تثبيت تحديث إلزامي لـ Tovra قبل الاتصال.</translation>
    </message>
    <message>
        <source>The Tovra service is not available</source>
        <translation>خدمة Tovra غير متاحة</translation>
    </message>
    <message>
        <source>The Tovra service did not answer</source>
        <translation>لم تستجب خدمة Tovra</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting</source>
        <translation>يجب تثبيت تحديث مطلوب لـ Tovra قبل الاتصال</translation>
    </message>
    <message>
        <source>Another connection request replaced this one</source>
        <translation>حلّ طلب اتصال آخر محل هذا الطلب</translation>
    </message>
</context>
<context>
    <name>TovraRegionPickerDialog</name>
    <message>
        <source>Save</source>
        <extracomment>Button</extracomment>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>اختيار المناطق</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>البحث في الدول</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>الدول</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, outside the tunnel. Everything else goes through the tunnel.</source>
        <translation>تمر حركة المرور إلى المناطق التي تحددها مباشرة، خارج النفق. وكل ما عدا ذلك يمر عبر النفق.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, not through the proxy. Everything else goes through the proxy.</source>
        <translation>تمر حركة المرور إلى المناطق التي تحددها مباشرة، لا عبر الوكيل. وكل ما عدا ذلك يمر عبر الوكيل.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the tunnel. Everything else goes direct.</source>
        <translation>تمر حركة المرور إلى المناطق التي تحددها عبر النفق. وكل ما عدا ذلك يمر مباشرة.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the proxy. Everything else goes direct.</source>
        <translation>تمر حركة المرور إلى المناطق التي تحددها عبر الوكيل. وكل ما عدا ذلك يمر مباشرة.</translation>
    </message>
    <message>
        <source>Checked: %1</source>
        <translation>المحدَّدة: %1</translation>
    </message>
    <message>
        <source>No country matches “%1”.</source>
        <translation>لا توجد دولة مطابقة لـ «%1».</translation>
    </message>
</context>
<context>
    <name>TovraSplitRulesEditorDialog</name>
    <message>
        <source>Rule list</source>
        <translation>قائمة القواعد</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>Button that replaces the chosen rule list with the lines typed</extracomment>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>قواعد التقسيم المخصصة</translation>
    </message>
    <message>
        <source>One domain, IP address or CIDR range per line, such as example.org, 203.0.113.7 or 10.0.0.0/8. Lines starting with # are comments.</source>
        <translation>نطاق أو عنوان IP أو نطاق CIDR واحد في كل سطر، مثل example.org أو 203.0.113.7 أو 10.0.0.0/8. الأسطر التي تبدأ بـ # تعليقات.</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>القواعد</translation>
    </message>
    <message>
        <source>example.org
*.example.net
203.0.113.0/24</source>
        <translation>example.org
*.example.net
203.0.113.0/24</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button</extracomment>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Replace the chosen list with these rules</source>
        <translation>استبدال القائمة المختارة بهذه القواعد</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Name of the rule list whose sites and addresses go straight to the internet</extracomment>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>الوكيل</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>حظر</translation>
    </message>
    <message>
        <source>Sites and addresses that always go direct</source>
        <translation>المواقع الإلكترونية والعناوين التي تمر مباشرة دائمًا</translation>
    </message>
    <message>
        <source>Sites and addresses that always go through Tovra</source>
        <translation>المواقع الإلكترونية والعناوين التي تمر عبر Tovra دائمًا</translation>
    </message>
    <message>
        <source>Sites and addresses that are blocked</source>
        <translation>المواقع الإلكترونية والعناوين المحظورة</translation>
    </message>
    <message>
        <source>Loading rules…</source>
        <translation>جارٍ تحميل القواعد…</translation>
    </message>
    <message>
        <source>The Tovra service reports no rule lists.</source>
        <translation>لا تُبلغ خدمة Tovra عن أي قوائم قواعد.</translation>
    </message>
    <message>
        <source>Rules are not loaded yet.</source>
        <translation>لم يتم تحميل القواعد بعد.</translation>
    </message>
    <message>
        <source>Rules: %1 · Lines: %2</source>
        <translation>القواعد: %1 · الأسطر: %2</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>لم يُستورد</translation>
    </message>
    <message>
        <source>importing…</source>
        <translation>جارٍ الاستيراد…</translation>
    </message>
    <message>
        <source>Nothing was imported. Fix these lines first:</source>
        <translation>لم يُستورد شيء. أصلح هذه الأسطر أولًا:</translation>
    </message>
    <message>
        <source>Line %1: “%2” is not a domain, IP address or CIDR range.</source>
        <translation>السطر %1: «%2» ليس نطاقًا ولا عنوان IP ولا نطاق CIDR.</translation>
    </message>
    <message>
        <source>… Bad lines in all: %1.</source>
        <translation>… إجمالي الأسطر الخاطئة: %1.</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation>Tovra: جارٍ الاتصال...</translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation>Tovra: جارٍ الاتصال بـ %1...</translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation>[ %1 ]</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>خطأ: %1</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN split...</source>
        <extracomment>Changing the default route of the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: جارٍ تحديث TovraVPN مقسَّم...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN regions...</source>
        <translation>Tovra: جارٍ تحديث مناطق TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN GFWList...</source>
        <translation>Tovra: جارٍ تحديث GFWList في TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN custom rules...</source>
        <translation>Tovra: جارٍ تحديث القواعد المخصصة في TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy Split...</source>
        <translation>Tovra: جارٍ تحديث Tovra Proxy مقسَّم...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy regions...</source>
        <translation>Tovra: جارٍ تحديث مناطق Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy GFWList...</source>
        <translation>Tovra: جارٍ تحديث GFWList في Tovra Proxy...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when a request to the service failed without a reason. Word it as a user would understand it: &quot;could not complete the action&quot;</extracomment>
        <translation>تعذّر إكمال الإجراء</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>مجلد السجلات</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>%1 غير محدد</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>%1 غير موجود: %2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>تعذّر فتح %1: %2</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>الحالي: جارٍ التحميل...</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>تحديث المواقع</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>جارٍ تحميل المواقع...</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>Mode: TovraVPN</source>
        <translation>الوضع: TovraVPN</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>شامل</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>مقسَّم</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>خيارات التقسيم</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>الافتراضي: النفق</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>الافتراضي: مباشر</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>المناطق</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList ← النفق</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>قواعد التقسيم المخصصة</translation>
    </message>
    <message>
        <source>Mode: Tovra Proxy</source>
        <translation>الوضع: Tovra Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>الافتراضي: الوكيل</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList ← الوكيل</translation>
    </message>
    <message>
        <source>Tovra: starting...</source>
        <translation>Tovra: جارٍ البدء...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>الخدمة: جارٍ التحقق...</translation>
    </message>
    <message>
        <source>Open Tovra...</source>
        <translation>فتح Tovra...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>قطع الاتصال</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>وكيل النظام</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings are left alone</extracomment>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings point at Tovra</extracomment>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy menu option and value, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>قفل</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>الشبكة المحلية</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>الوصول إلى الشبكة المحلية</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network menu option and value: devices nearby are reached outside the tunnel. Also the route in &quot;Regions use %1: %2&quot;</extracomment>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network menu option and value: local traffic goes through the tunnel like the rest</extracomment>
        <translation>محمي</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>تحديث الحالة</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>فتح السجلات</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>الحساب: جارٍ التحقق...</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>تسجيل الخروج</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Tovra: daemon unavailable</source>
        <translation>Tovra: الخدمة غير متاحة</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>الخدمة غير متاحة</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>الحساب: غير متاح</translation>
    </message>
    <message>
        <source>Tovra - daemon unavailable</source>
        <translation>Tovra - الخدمة غير متاحة</translation>
    </message>
    <message>
        <source>Tovra: switching to auto...</source>
        <translation>Tovra: جارٍ التبديل إلى التلقائي...</translation>
    </message>
    <message>
        <source>Tovra: switching to WireGuard...</source>
        <translation>Tovra: جارٍ التبديل إلى WireGuard...</translation>
    </message>
    <message>
        <source>Tovra: switching to TovraVPN...</source>
        <translation>Tovra: جارٍ التبديل إلى TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: switching TovraVPN split...</source>
        <extracomment>Switching to the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: جارٍ التبديل إلى TovraVPN مقسَّم...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy...</source>
        <translation>Tovra: جارٍ التبديل إلى Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy Split...</source>
        <translation>Tovra: جارٍ التبديل إلى Tovra Proxy مقسَّم...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>وكيل النظام: %1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>الشبكة المحلية: %1</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>النفق</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>الوكيل</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>المناطق بمسار %1: %2</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>تعذّر تحديث المواقع</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>تعذّر تحميل المواقع</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>تعذّر تحديث مجموعات المواقع</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>تعذّر تحميل مجموعات المواقع</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>جارٍ تحديث المواقع...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>لم يتم تحميل المواقع</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>لا توجد مواقع محفوظة مؤقتًا</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>لا توجد مواقع</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>الحالي: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>تحديث المواقع (%1 ث)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>الموقع: %1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>الموقع: %1 · %2</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>الحالي: %1 (قديم)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>مجموعة</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>أقل من دقيقة</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>%1h</source>
        <translation>%1 س</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation>%1 س %2 د</translation>
    </message>
    <message>
        <source>%1d</source>
        <translation>%1 ي</translation>
    </message>
    <message>
        <source>%1d %2h</source>
        <translation>%1 ي %2 س</translation>
    </message>
    <message>
        <source>Tovra: disconnecting...</source>
        <translation>Tovra: جارٍ قطع الاتصال...</translation>
    </message>
    <message>
        <source>Tovra: logging out...</source>
        <translation>Tovra: جارٍ تسجيل الخروج...</translation>
    </message>
    <message>
        <source>Tovra: updating system proxy...</source>
        <translation>Tovra: جارٍ تحديث وكيل النظام...</translation>
    </message>
    <message>
        <source>Tovra: updating local network routing...</source>
        <translation>Tovra: جارٍ تحديث توجيه الشبكة المحلية...</translation>
    </message>
    <message>
        <source>Tovra: enabling kill switch...</source>
        <translation>Tovra: جارٍ تفعيل مفتاح الإيقاف...</translation>
    </message>
    <message>
        <source>Tovra: disabling kill switch...</source>
        <translation>Tovra: جارٍ إيقاف مفتاح الإيقاف...</translation>
    </message>
    <message>
        <source>Tovra: connect failed</source>
        <translation>Tovra: فشل الاتصال</translation>
    </message>
    <message>
        <source>Tovra: disconnect failed</source>
        <translation>Tovra: فشل قطع الاتصال</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>تم تسجيل الخروج</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when signing out failed and the service gave no reason. Word it as a user would understand it: &quot;could not complete the account action&quot;</extracomment>
        <translation>تعذّر إكمال إجراء الحساب</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when changing the mode failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the mode&quot;</extracomment>
        <translation>تعذّر تغيير الوضع</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>تم تحديث الوضع</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>تم ضبط وكيل النظام على %1</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>تم التحديث</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>تم تفعيل مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>تم إيقاف مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when turning the kill switch on or off failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the kill switch&quot;</extracomment>
        <translation>تعذّر تغيير مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Tunnel state after &quot;Tovra: &quot;: the VPN is connected (not connecting)</extracomment>
        <translation>متصل</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>جارٍ الاتصال</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>جارٍ قطع الاتصال</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Tovra: %1</source>
        <translation>Tovra: %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>قيد التشغيل</translation>
    </message>
    <message>
        <source>Daemon: %1</source>
        <translation>الخدمة: %1</translation>
    </message>
    <message>
        <source>Daemon: %1 (%2)</source>
        <translation>الخدمة: %1 (%2)</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>الحساب: محفوظ مؤقتًا</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>الحساب: يلزم تسجيل الدخول</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>الحساب: %1</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>الحساب: تم تسجيل الدخول</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>مفتاح الإيقاف: %1</translation>
    </message>
    <message>
        <source>off</source>
        <comment>system proxy value</comment>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>on</source>
        <comment>system proxy value</comment>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>lock</source>
        <comment>system proxy value</comment>
        <translation>قفل</translation>
    </message>
    <message>
        <source>%1 · Locked: needs the %2 plan</source>
        <extracomment>A node menu entry the plan does not include: the node, then the plan it needs</extracomment>
        <translation>%1 · مقفل: يتطلب خطة %2</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Could not read the update download status.</source>
        <translation>تعذّرت قراءة حالة تنزيل التحديث.</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>أُلغي التنزيل.</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>تعذّر تنزيل التحديث.</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>اكتمل التنزيل. جارٍ فتح المثبّت...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>رابط التنزيل غير متاح.</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>تعذّر فتح رابط تنزيل التحديث.</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Tovra will not run the installer automatically.</source>
        <translation>فُتح رابط التنزيل في متصفحك. لن يشغّل Tovra المثبّت تلقائيًا.</translation>
    </message>
    <message>
        <source>Tovra Update</source>
        <translation>تحديث Tovra</translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation>يجب تحديث Tovra قبل أن تتمكن من الاتصال. نزّل المثبّت أو اخرج من Tovra.</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>ما الجديد</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>تقدم التنزيل</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <extracomment>Button (shown as a link) that stops offering this update</extracomment>
        <translation>إخفاء هذا التحديث</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>Button that closes the dialog and keeps the update for later</extracomment>
        <translation>ليس الآن</translation>
    </message>
    <message>
        <source>Exit Tovra</source>
        <extracomment>Button that quits Tovra when the update is required</extracomment>
        <translation>الخروج من Tovra</translation>
    </message>
    <message>
        <source>Exit Tovra without updating</source>
        <translation>الخروج من Tovra دون تحديث</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <extracomment>Button that opens the installer download page in the browser</extracomment>
        <translation>فتح رابط التنزيل</translation>
    </message>
    <message>
        <source>Open the Tovra update download link</source>
        <translation>فتح رابط تنزيل تحديث Tovra</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>يتوفر تحديث إلزامي</translation>
    </message>
    <message>
        <source>A new Tovra update is available</source>
        <translation>يتوفر تحديث جديد لـ Tovra</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>الأحدث</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>الإصدار الحالي: %1
الإصدار المتاح: %2</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>ملاحظات الإصدار غير متاحة.</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>جارٍ تنزيل %1 من %2</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>جارٍ تنزيل التحديث...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 ميغابايت</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>جارٍ تجهيز التنزيل...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>جارٍ التحقق من التنزيل...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>جارٍ إلغاء التنزيل...</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <extracomment>Button that hides the dialog while the installer downloads</extracomment>
        <translation>التنزيل في الخلفية</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>نزّل أحدث مثبّت دون مقاطعة جلستك الحالية.</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>إخفاء هذه النافذة أثناء تنزيل التحديث</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <extracomment>Button while the download is being cancelled</extracomment>
        <translation>جارٍ الإلغاء...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>إلغاء تنزيل التحديث</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <extracomment>Button</extracomment>
        <translation>إلغاء التنزيل</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <extracomment>Button while the downloaded installer opens</extracomment>
        <translation>جارٍ فتح المثبّت...</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <extracomment>Button</extracomment>
        <translation>إعادة التنزيل</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>إعادة محاولة تنزيل التحديث</translation>
    </message>
    <message>
        <source>Download Update</source>
        <extracomment>Button that downloads and opens the installer</extracomment>
        <translation>تنزيل التحديث</translation>
    </message>
    <message>
        <source>Download and install the Tovra update</source>
        <translation>تنزيل تحديث Tovra وتثبيته</translation>
    </message>
    <message>
        <source>Retrying the download...</source>
        <translation>جارٍ إعادة محاولة التنزيل...</translation>
    </message>
</context>
<context>
    <name>UpdatesSection</name>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <extracomment>Button</extracomment>
        <translation>التحقق من وجود تحديثات</translation>
    </message>
    <message>
        <source>Tovra for Linux</source>
        <translation>Tovra لنظام Linux</translation>
    </message>
    <message>
        <source>The version of this app.</source>
        <translation>إصدار هذا التطبيق.</translation>
    </message>
    <message>
        <source>Ask the Tovra service for a newer version.</source>
        <translation>اسأل خدمة Tovra عن إصدار أحدث.</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (البنية %2)</translation>
    </message>
</context>
<context>
    <name>VpnKillSwitchRow</name>
    <message>
        <source>Kill Switch</source>
        <translation>مفتاح الإيقاف</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connect</source>
        <extracomment>Button that connects the VPN</extracomment>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that opens the account page to sign in</extracomment>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that stops a connection attempt</extracomment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <extracomment>Button that disconnects the VPN</extracomment>
        <translation>قطع الاتصال</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <extracomment>Button while the VPN disconnects</extracomment>
        <translation>جارٍ قطع الاتصال…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Service unavailable</source>
        <translation>الخدمة غير متاحة</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service to answer.</source>
        <translation>في انتظار استجابة خدمة Tovra.</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>تم تسجيل الخروج</translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect.</source>
        <translation>سجّل الدخول إلى حساب Tovra للاتصال.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>آخر موقع</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Your traffic goes through the Tovra tunnel.</source>
        <translation>تمر حركة المرور عبر نفق Tovra.</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>جارٍ الاتصال…</translation>
    </message>
    <message>
        <source>Setting up the tunnel.</source>
        <translation>جارٍ إعداد النفق.</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>جارٍ الاتصال بـ %1</translation>
    </message>
    <message>
        <source>Closing the tunnel.</source>
        <translation>جارٍ إغلاق النفق.</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Kill Switch blocks traffic until you connect.</source>
        <translation>يحظر مفتاح الإيقاف حركة المرور حتى تتصل.</translation>
    </message>
    <message>
        <source>Your traffic is not protected.</source>
        <translation>حركة المرور غير محمية.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>متصل بـ %1</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>فشل الاتصال: %1</translation>
    </message>
</context>
<context>
    <name>VpnRecentLocations</name>
    <message>
        <source>Clear</source>
        <extracomment>Button that empties the list of recent locations</extracomment>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Locations you connect to appear here.</source>
        <translation>تظهر هنا المواقع التي تتصل بها.</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>المواقع الأخيرة</translation>
    </message>
    <message>
        <source>Clear recent locations</source>
        <translation>مسح المواقع الأخيرة</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>الاتصال بـ %1</translation>
    </message>
</context>
<context>
    <name>VpnStatusCard</name>
    <message>
        <source>Connected for %1</source>
        <translation>مدة الاتصال: %1</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>الوضع: %1</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Could not open link</source>
        <translation>تعذّر فتح الرابط</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>مجلد السجلات غير متاح</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>مجلد السجلات غير موجود: %1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>تعذّر فتح مجلد السجلات: %1</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>تعذّر إكمال إجراء الحساب</translation>
    </message>
</context>
<context>
    <name>WindowShortcuts</name>
    <message>
        <source>Ctrl+1</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Show the VPN page</source>
        <translation>عرض صفحة VPN</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show the Locations page</source>
        <translation>عرض صفحة المواقع</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Show the Mode page</source>
        <translation>عرض صفحة الوضع</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Show the Settings page</source>
        <translation>عرض صفحة الإعدادات</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Show the Account page</source>
        <translation>عرض صفحة الحساب</translation>
    </message>
    <message>
        <source>Search: the quick connect field on the VPN page, the list on the Locations page</source>
        <translation>البحث: حقل الاتصال السريع في صفحة VPN، والقائمة في صفحة المواقع</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>تحديث المواقع</translation>
    </message>
    <message>
        <source>Close the window; Tovra stays in the tray</source>
        <translation>إغلاق النافذة؛ يبقى Tovra في منطقة الإشعارات</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Quit Tovra</source>
        <translation>إنهاء Tovra</translation>
    </message>
    <message>
        <source>Close a list, menu or dialog</source>
        <translation>إغلاق قائمة أو قائمة أوامر أو مربع حوار</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>عرض اختصارات لوحة المفاتيح هذه</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A control&apos;s tool tip: what it does, then its keyboard shortcut</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
</TS>
