--==== top.vhd ====
--top a
--


-- (legal notice)




--row d q
--


--wide d q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgul IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0)
	 ); 
 END top_mgul;

 ARCHITECTURE RTL OF top_mgul IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
 BEGIN

	q <= (NOT d);

 END RTL; --top_mgul

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgdj IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top_mgdj;

 ARCHITECTURE RTL OF top_mgdj IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_w_d	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_w_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  top_mgul
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(1 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(1 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_w_q;
	wire_w_d <= d;
	loop0 : FOR i IN 0 TO 1 GENERATE 
	  w :  top_mgul
	  PORT MAP ( 
		d => wire_w_d(i*2+1 DOWNTO i*2),
		q => wire_w_q(i*2+1 DOWNTO i*2)
	  );
	END GENERATE loop0;

 END RTL; --top_mgdj

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 a	:	IN  STD_LOGIC_VECTOR (7 DOWNTO 0);
		 y	:	OUT  STD_LOGIC_VECTOR (7 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_r_d	:	STD_LOGIC_VECTOR (7 DOWNTO 0);
	 SIGNAL  wire_r_q	:	STD_LOGIC_VECTOR (7 DOWNTO 0);
	 COMPONENT  top_mgdj
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	y <= wire_r_q;
	wire_r_d <= a;
	loop1 : FOR i IN 0 TO 1 GENERATE 
	  r :  top_mgdj
	  PORT MAP ( 
		d => wire_r_d(i*4+3 DOWNTO i*4),
		q => wire_r_q(i*4+3 DOWNTO i*4)
	  );
	END GENERATE loop1;

 END RTL; --top
--VALID FILE
