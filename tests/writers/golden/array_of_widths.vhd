--==== top.vhd ====
--top a b
--


-- (legal notice)




--wide WIDTH=3 d q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgeb1 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (2 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (2 DOWNTO 0)
	 ); 
 END top_mgeb1;

 ARCHITECTURE RTL OF top_mgeb1 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
 BEGIN

	q <= (NOT d);

 END RTL; --top_mgeb1


--wide WIDTH=1 d q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgcb1 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (0 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (0 DOWNTO 0)
	 ); 
 END top_mgcb1;

 ARCHITECTURE RTL OF top_mgcb1 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
 BEGIN

	q(0) <= (NOT d(0));

 END RTL; --top_mgcb1

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 a	:	IN  STD_LOGIC_VECTOR (2 DOWNTO 0);
		 b	:	IN  STD_LOGIC_VECTOR (0 DOWNTO 0);
		 y	:	OUT  STD_LOGIC_VECTOR (2 DOWNTO 0);
		 z	:	OUT  STD_LOGIC_VECTOR (0 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_w_0q	:	STD_LOGIC_VECTOR (2 DOWNTO 0);
	 SIGNAL  wire_w_1q	:	STD_LOGIC_VECTOR (0 DOWNTO 0);
	 COMPONENT  top_mgeb1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(2 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(2 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  top_mgcb1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(0 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(0 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	y <= wire_w_0q(2 DOWNTO 0);
	z <= wire_w_1q;
	w_0 :  top_mgeb1
	  PORT MAP ( 
		d => a,
		q => wire_w_0q
	  );
	w_1 :  top_mgcb1
	  PORT MAP ( 
		d => b,
		q => wire_w_1q
	  );

 END RTL; --top
--VALID FILE
